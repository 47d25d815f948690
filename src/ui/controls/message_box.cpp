#include "ui/controls/message_box.h"

#include "core/session/message_style.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/message_text.h"
#include "ui/controls/picture_view.h"
#include "ui/controls/scheme_palette.h"
#include "ui/controls/text_prompt.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QHBoxLayout>

namespace tessaly {
namespace {

constexpr int IconSize = 48;
constexpr int Margin = 28;
constexpr int LeastWidth = 320;

/// The pictures in the order of MessageIcons.
constexpr std::array<Picture, MessageIcons.size()> IconPictures{
    Picture::Question, Picture::Exclamation, Picture::Information, Picture::Error,
    Picture::Critical, Picture::Happy,       Picture::TrashCan,    Picture::Printer,
    Picture::Light,    Picture::Product,
};

QString textOf(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

MsgForm::MsgForm(const Appearance& appearance, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance) {
    setObjectName(QStringLiteral("MsgForm"));
    setWindowTitle(QGuiApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin - 4);
    layout->setSpacing(Margin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(makeMessage(), 1, Qt::AlignCenter);
    layout->addSpacerItem(new QSpacerItem(LeastWidth - 2 * Margin, 0));
    m_buttonRow = new QHBoxLayout;
    m_buttonRow->setSpacing(12);
    m_buttonRow->setAlignment(Qt::AlignHCenter);
    layout->addLayout(m_buttonRow);
}

QWidget* MsgForm::makeMessage() {
    auto* message = new QWidget(this);
    auto* layout = new QHBoxLayout(message);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(20);
    for (std::size_t i = 0; i < MessageIcons.size(); ++i) {
        auto* icon = new PictureView(IconPictures[i], IconSize, message);
        icon->setObjectName(QStringLiteral("icons_%1").arg(MessageIcons[i]));
        layout->addWidget(icon, 0, Qt::AlignTop);
        m_icons << icon;
    }
    m_text = new MessageText(message);
    m_text->setObjectName(QStringLiteral("message"));
    layout->addWidget(m_text, 0, Qt::AlignVCenter);
    return message;
}

void MsgForm::setIcon(int icon) {
    for (qsizetype i = 0; i < m_icons.size(); ++i)
        m_icons[i]->setVisible(MessageIcons[static_cast<std::size_t>(i)] == icon);
}

void MsgForm::setButtons(const MessageStyle& style) {
    qDeleteAll(m_buttons);
    m_buttons.clear();
    for (const MessageButton& button : style.buttons)
        addButton(textOf(button.caption), button.result);
    m_buttons.first()->setFocus();
}

void MsgForm::addButton(const QString& caption, int result) {
    auto* button = new BoxControl(caption, this);
    button->setObjectName(QStringLiteral("cmd_%1").arg(m_buttons.size()));
    button->setProperty("Tag", result);
    button->setMinimumSize(dialog::ButtonSize);
    connect(button, &BoxControl::clicked, this, [this, result] { done(result); });
    // Any key that goes down on the button shows, unless it led away from it.
    connect(button, &BoxControl::keyPressed, this,
            [button] { button->setDown(button->hasFocus() && button->isVisible()); });
    connect(button, &BoxControl::keyReleased, button, [button] { button->setDown(false); });
    m_buttonRow->addWidget(button);
    m_buttons << button;
}

int MsgForm::show(const QString& text, const QString& style) {
    if (isVisible()) // something went wrong while a question stands: it gets a box of its own
        return MsgForm(m_appearance, this).show(text, style);
    const MessageStyle wanted = readMessageStyle(style.toStdString());
    setPalette(schemePalette(m_appearance));
    setIcon(wanted.icon.value_or(-1));
    m_text->showText(text);
    m_text->setVisible(!text.isEmpty());
    setButtons(wanted);
    setAccessibleDescription(text);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    setAttribute(Qt::WA_Moved, false); // in the middle of its window, wherever it stood last
    return exec();
}

int MsgForm::message(std::string_view text, std::string_view style) {
    return show(textOf(text), textOf(style));
}

std::string MsgForm::ask(std::string_view question) {
    return TextPrompt(m_appearance, this).ask(textOf(question)).toStdString();
}

} // namespace tessaly
