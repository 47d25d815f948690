#pragma once

#include "core/options/appearance.h"

#include <QDialog>
#include <QTextBrowser>

#include <filesystem>
#include <string>

namespace tessaly {

class BoxControl;

/// Shows the pages of the manual in the colours of a scheme. Pictures are drawn at twice their
/// size, so that they are sharp on every screen.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    void wear(const Appearance& appearance);
    /// Shows a page from its start. A page that is not there shows a text that says so.
    void navigate(const QUrl& page);

    QVariant loadResource(int type, const QUrl& name) override;
};

/// The help window: the manual in a browser. Each time it is shown it takes the colours of the
/// scheme in force and goes to the page that its tag names; coming back to it from another program
/// leaves the reader where he was. Back and Forward lead from one place in the page to another.
class Form4 : public QDialog {
    Q_OBJECT

public:
    /// `appearance` must outlive the form.
    explicit Form4(const Appearance& appearance, QWidget* parent = nullptr);

    /// The full path of the page to show.
    void setTag(const std::filesystem::path& path) { m_tag = path; }

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    BoxControl* addButton(const QString& caption, const QString& name);
    void activate();
    /// Whether the page stands at one of its anchors, which is where Back and Forward act.
    bool isAtAnchor() const;
    void enableButtons();

    const Appearance& m_appearance;
    std::filesystem::path m_tag;
    HelpBrowser* m_browser; // WebBrowser1
    BoxControl* m_back;     // Command1
    BoxControl* m_forward;  // Command2
    BoxControl* m_exit;     // Command3
};

} // namespace tessaly
