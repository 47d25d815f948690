#pragma once

#include "core/options/appearance.h"

#include <QDialog>

class QLabel;
class QPlainTextEdit;

namespace tessaly {

class BoxControl;

/// The about box. Each time it is shown it takes the colours of the scheme in force; "OK", Escape
/// and a press of the mouse on its text close it.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    /// `appearance` must outlive the form.
    explicit AboutForm(const Appearance& appearance, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrange();
    void activate();

    const Appearance& m_appearance;
    QPlainTextEdit* m_text; // AboutText
    BoxControl* m_ok;       // AboutOk
    QLabel* m_version;      // Label1
};

} // namespace tessaly
