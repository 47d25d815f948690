#include "ui/window/status_line.h"

#include "ui/controls/dialog_parts.h"

#include <QHBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int LineHeight = 26;

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent)
    , m_message(named(u"MsgLab"_s, new ElidedLabel(this)))
    , m_time(named(u"TimeLab"_s, new QLabel(this))) {
    m_time->setToolTip(tr("Time played"));
    m_time->hide();
    m_message->setAlignment(Qt::AlignCenter);
    setFixedHeight(LineHeight);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(dialog::Spacing);
    line->addWidget(m_message, 1);
    line->addWidget(m_time);
}

void StatusLine::showTime(const QString& text) {
    m_time->setText(text);
    m_time->setVisible(!text.isEmpty());
}

void StatusLine::showMessage(std::string_view text) {
    m_message->setText(QString::fromUtf8(text));
}

} // namespace tessaly
