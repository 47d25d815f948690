#include "ui/controls/message_box.h"

#include "core/session/message_style.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/icon_set.h"
#include "ui/controls/scheme_palette.h"

#include <QAccessible>
#include <QDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

class QLabel;
class QLineEdit;

namespace tessaly {
namespace {

/// About this many letters stand in a line.
constexpr int LettersInLine = 64;

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

/// Asks for one line of text, in the scheme that is in force.
class TextPrompt : public QDialog {
    Q_OBJECT

public:
    explicit TextPrompt(const Appearance& appearance, QWidget* parent = nullptr);

    /// Shows the question and waits; nothing when the user gives no text.
    QString ask(const QString& question);

private:
    QLabel* m_question;
    QLineEdit* m_line;
};

using namespace Qt::StringLiterals;

constexpr int PromptMargin = 24;
constexpr int LineWidth = 320;

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
    rows->setContentsMargins(PromptMargin, PromptMargin, PromptMargin, PromptMargin);
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

} // namespace

/// A text of any length, wrapped to a comfortable width: between words where it can, within a
/// word (a long path) where it must. It can be selected with the pointer and copied. What does
/// not fit on the screen scrolls.
class MessageText : public QTextEdit {
    Q_OBJECT

public:
    explicit MessageText(QWidget* parent = nullptr);

    /// Shows `text` and takes the size that it needs.
    void showText(const QString& text);
};

MessageText::MessageText(QWidget* parent)
    : QTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The keys belong to the buttons.
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.1);
    setFont(larger);
}

void MessageText::showText(const QString& text) {
    setPlainText(text);
    ensurePolished();
    document()->setDefaultFont(font());
    const int longestLine = fontMetrics().size(Qt::TextExpandTabs, toPlainText()).width() + 1;
    const int width = std::min(longestLine, LettersInLine * fontMetrics().averageCharWidth());
    setLineWrapColumnOrWidth(width);
    const int height = qCeil(document()->size().height());
    const int highest = screen()->availableGeometry().height() * 3 / 5;
    const bool scrolls = height > highest;
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setFixedSize(width + (scrolls ? verticalScrollBar()->sizeHint().width() : 0),
                 std::min(height, highest));
}

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

#include "message_box.moc"
