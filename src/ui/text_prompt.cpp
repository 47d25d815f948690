// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/text_prompt.h"

#include "ui/box_control.h"
#include "ui/scheme_palette.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int Margin = 24;
constexpr int Spacing = 12;
constexpr int LineWidth = 320;
constexpr int ButtonWidth = 96;
constexpr int ControlHeight = 34;

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
    m_line->setMinimumSize(LineWidth, ControlHeight);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing);
    buttons->addStretch();
    const auto addButton = [&](const QString& caption, const QString& name, auto slot) {
        auto* button = new BoxControl(caption, this);
        button->setObjectName(name);
        button->setFixedSize(ButtonWidth, ControlHeight);
        connect(button, &BoxControl::clicked, this, slot);
        buttons->addWidget(button);
    };
    addButton(u"Ok"_s, u"ok"_s, &QDialog::accept);
    addButton(u"Cancel"_s, u"cancel"_s, &QDialog::reject);
    connect(m_line, &QLineEdit::returnPressed, this, &QDialog::accept);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(m_question);
    rows->addWidget(m_line);
    rows->addLayout(buttons);
}

QString TextPrompt::ask(const QString& question) {
    m_question->setText(question);
    m_line->setAccessibleName(question);
    m_line->setFocus();
    return exec() == Accepted ? m_line->text() : QString();
}

} // namespace tessaly
