#pragma once

#include "core/base/prompts.h"
#include "core/options/appearance.h"

#include <QDialog>
#include <QList>

class QHBoxLayout;

namespace tessaly {

class BoxControl;
class MessageText;

/// The program's own message box. It is made once and shown whenever there is something to say; it
/// wears the scheme that is in force at that moment.
class MsgForm : public QDialog, public Prompts {
    Q_OBJECT

public:
    /// `appearance` must outlive the form.
    explicit MsgForm(const Appearance& appearance, QWidget* parent = nullptr);

    /// Shows `text` with the buttons and the icon that `style` names, and waits. Answers the
    /// number of the button that closed the box, 0 when none did.
    int show(const QString& text, const QString& style);

    int message(std::string_view text, std::string_view style) override;
    std::string ask(std::string_view question) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeMessage();
    /// Shows the icons of these numbers and hides the others.
    void setIcons(const QList<int>& numbers);
    void addButton(const QString& caption, int result);

    const Appearance& m_appearance;
    QList<QWidget*> m_icons;
    MessageText* m_text = nullptr;
    QHBoxLayout* m_buttonRow = nullptr;
    QList<BoxControl*> m_buttons;
};

} // namespace tessaly
