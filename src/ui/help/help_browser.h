#pragma once

#include "core/options/appearance.h"

#include <QTextBrowser>

namespace tessaly {

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

} // namespace tessaly
