#include "ui/window/status_line.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

#include <QHBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int LineHeight = 34;

ElidedLabel* makeLabel(const QString& name, QWidget* parent) {
    auto* label = new ElidedLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent)
    , StatLab(new BoxControl(tr("Check"), this))
    , m_fileName(makeLabel(u"PuzFileName"_s, this))
    , m_message(makeLabel(u"MsgLab"_s, this))
    , m_time(new QLabel(this)) {
    m_time->setObjectName(u"TimeLab"_s);
    m_time->setToolTip(tr("Time played"));
    m_time->hide();
    StatLab->setObjectName(u"StatLab"_s);
    StatLab->setToolTip(u"Check Solution"_s);
    StatLab->setFixedHeight(LineHeight);
    m_message->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFixedHeight(LineHeight);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(dialog::Spacing);
    line->addWidget(m_fileName, 2);
    line->addWidget(m_message, 3);
    line->addWidget(m_time);
    line->addWidget(StatLab);
}

void StatusLine::showFile(const std::filesystem::path& path) {
    m_fileName->setText(pathText(path.filename()));
    m_fileName->setToolTip(plainToolTip(pathText(path)));
}

void StatusLine::showFileText(const QString& text) {
    m_fileName->setText(text);
    m_fileName->setToolTip({});
}

void StatusLine::showTime(const QString& text) {
    m_time->setText(text);
    m_time->setVisible(!text.isEmpty());
}

void StatusLine::showMessage(std::string_view text) {
    m_message->setText(QString::fromUtf8(text));
}

} // namespace tessaly
