#include "ui/controls/text_prompt.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/scheme_palette.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int Margin = 24;
constexpr int LineWidth = 320;

} // namespace

TextPrompt::TextPrompt(const Appearance& appearance, QWidget* parent)
    : QDialog(parent)
    , m_question(new QLabel(this))
    , m_line(new QLineEdit(this)) {
    setObjectName(u"TextPrompt"_s);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setPalette(schemePalette(appearance));
    m_question->setTextFormat(Qt::PlainText);
    m_question->setBuddy(m_line);
    m_line->setObjectName(u"line"_s);
    m_line->setMinimumSize(LineWidth, dialog::ButtonSize.height());
    auto* ok = named(u"ok"_s, new BoxControl(u"Ok"_s, this));
    auto* cancel = named(u"cancel"_s, new BoxControl(u"Cancel"_s, this));
    connect(ok, &BoxControl::clicked, this, &QDialog::accept);
    connect(cancel, &BoxControl::clicked, this, &QDialog::reject);
    connect(m_line, &QLineEdit::returnPressed, this, &QDialog::accept);

    QVBoxLayout* rows = addRows(*this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(m_question);
    rows->addWidget(m_line);
    rows->addLayout(makeButtonRow({ok, cancel}));
}

QString TextPrompt::ask(const QString& question) {
    m_question->setText(question);
    m_line->setAccessibleName(question);
    m_line->setFocus();
    return exec() == Accepted ? m_line->text() : QString();
}

} // namespace tessaly
