#include "ui/controls/message_box.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/icon_set.h"
#include "ui/drawing/qt_values.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QWindow>

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int MessageIconSize = 48;
constexpr int MessageMargin = 28;
constexpr int LeastWidth = 320;
/// About this many letters stand in a line of a message.
constexpr int LettersInLine = 64;
constexpr int PromptMargin = 24;
constexpr int LineWidth = 320;

/// A word of a style that gives the box an icon: the number that the icon goes by, and its picture.
struct IconWord {
    const char* word;
    int number;
    Picture picture;
};
constexpr std::array IconWords{
    IconWord{"vbquestion", 0, Picture::Question},
    IconWord{"vbexclamation", 1, Picture::Exclamation},
    IconWord{"vbinformation", 2, Picture::Information},
    IconWord{"vberror", 3, Picture::Error},
    IconWord{"vbcritical", 4, Picture::Critical},
    IconWord{"vbhappy", 5, Picture::Happy},
    IconWord{"vbtrash", 6, Picture::TrashCan},
    IconWord{"vbprint", 7, Picture::Printer},
    IconWord{"vblighton", 8, Picture::Light},
    IconWord{"vbcustom", 10, Picture::Product},
};

/// A button of a box and the number that it answers.
struct Choice {
    const char* caption;
    int result;
};
constexpr Choice Ok{"Ok", answer::Ok};
constexpr Choice Cancel{"Cancel", answer::Cancel};
constexpr Choice Abort{"Abort", answer::Abort};
constexpr Choice Retry{"Retry", answer::Retry};
constexpr Choice Ignore{"Ignore", answer::Ignore};
constexpr Choice Yes{"Yes", answer::Yes};
constexpr Choice No{"No", answer::No};

/// A word of a style that gives the box buttons.
struct ButtonWord {
    const char* word;
    /// One to three; a place without a caption is empty.
    std::array<Choice, 3> buttons;
};
constexpr std::array ButtonWords{
    ButtonWord{"vbokonly", {Ok}},
    ButtonWord{"vbok", {Ok}},
    ButtonWord{"vbnormal", {Choice{"Ok", answer::None}}},
    ButtonWord{"vbokcancel", {Ok, Cancel}},
    ButtonWord{"vbcancelok", {Ok, Cancel}},
    ButtonWord{"vbcancel", {Cancel}},
    ButtonWord{"vbabortretryignore", {Abort, Retry, Ignore}},
    ButtonWord{"vbabort", {Abort}},
    ButtonWord{"vbretry", {Retry}},
    ButtonWord{"vbignore", {Ignore}},
    ButtonWord{"vbretrycancel", {Retry, Cancel}},
    ButtonWord{"vbyes", {Yes}},
    ButtonWord{"vbno", {No}},
    ButtonWord{"vbyesno", {Yes, No}},
    ButtonWord{"vbyesnocancel", {Yes, No, Cancel}},
    ButtonWord{"vbcontinuecancel", {Choice{"Continue", answer::Yes}, Cancel}},
};

/// What the words of a style ask for.
struct Style {
    /// The icons' numbers.
    QList<int> icons;
    /// Left to right; never empty.
    QList<Choice> buttons;
    /// Which button has the focus: the first, or with "vbdefaultbutton2" the second.
    qsizetype focused = 0;
};

/// Reads words joined by "+", in any capitals and with blanks around them. Unknown words count for
/// nothing, and without any button there is an "Ok".
Style styleOf(const QString& words) {
    Style style;
    for (const QString& spelt : words.split(u'+')) {
        const QString word = spelt.trimmed().toLower();
        if (word == u"vbdefaultbutton2")
            style.focused = 1;
        for (const IconWord& entry : IconWords)
            if (word == QLatin1String(entry.word))
                style.icons << entry.number;
        for (const ButtonWord& entry : ButtonWords)
            if (word == QLatin1String(entry.word))
                std::copy_if(entry.buttons.begin(), entry.buttons.end(),
                             std::back_inserter(style.buttons),
                             [](const Choice& choice) { return choice.caption != nullptr; });
    }
    if (style.buttons.isEmpty())
        style.buttons << Ok;
    return style;
}

/// The window that a question is about: the dialog that stands open, else the window in use or,
/// while another program is, the main one.
const QWidget* askingWindow() {
    for (const QWidget* window : {QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (window != nullptr)
            return window;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<const QMainWindow*>(window) != nullptr)
            return window;
    return nullptr;
}

/// Puts a dialog that is about to be seen in the middle of the window that it belongs to, and
/// before it for as long as it stands.
void placeOverItsWindow(QDialog& dialog) {
    const QWidget* owner = askingWindow();
    if (owner == nullptr || owner == &dialog)
        return;
    dialog.layout()->activate(); // which gives it the size that it needs this time
    dialog.adjustSize();
    dialog.windowHandle()->setTransientParent(owner->windowHandle());
    dialog.move(owner->frameGeometry().center() - dialog.rect().center());
}

/// Asks for one line of text, in the scheme that is in force.
class TextPrompt : public QDialog {
public:
    explicit TextPrompt(const Appearance& appearance, QWidget* parent);

    /// Shows the question and waits; nothing when the user gives no text.
    QString ask(const QString& question);

protected:
    void showEvent(QShowEvent* event) override {
        QDialog::showEvent(event);
        placeOverItsWindow(*this);
    }

private:
    QLabel* m_question;
    QLineEdit* m_line;
};

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
public:
    explicit MessageText(QWidget* parent);

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
    setObjectName(u"MsgForm"_s);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MessageMargin, MessageMargin, MessageMargin, MessageMargin - 4);
    layout->setSpacing(MessageMargin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(makeMessage(), 1, Qt::AlignCenter);
    layout->addSpacerItem(new QSpacerItem(LeastWidth - 2 * MessageMargin, 0));
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
    for (const IconWord& entry : IconWords) {
        auto* icon = named(u"icons_%1"_s.arg(entry.number),
                           new PictureView(entry.picture, MessageIconSize, message));
        layout->addWidget(icon, 0, Qt::AlignTop);
        m_icons << icon;
    }
    m_text = named(u"message"_s, new MessageText(message));
    layout->addWidget(m_text, 0, Qt::AlignVCenter);
    return message;
}

void MsgForm::setIcons(const QList<int>& numbers) {
    for (std::size_t i = 0; i < IconWords.size(); ++i)
        m_icons[static_cast<qsizetype>(i)]->setVisible(numbers.contains(IconWords[i].number));
}

void MsgForm::addButton(const QString& caption, int result) {
    auto* button = named(u"cmd_%1"_s.arg(m_buttons.size()), new BoxControl(caption, this));
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
    const Style wanted = styleOf(style);
    setPalette(schemePalette(m_appearance));
    setIcons(wanted.icons);
    m_text->showText(text);
    m_text->setVisible(!text.isEmpty());
    qDeleteAll(std::exchange(m_buttons, {}));
    for (const Choice& choice : wanted.buttons)
        addButton(QLatin1String(choice.caption), choice.result);
    m_buttons.value(wanted.focused, m_buttons.first())->setFocus();
    setAccessibleDescription(text);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    return exec();
}

void MsgForm::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    placeOverItsWindow(*this);
}

int MsgForm::message(std::string_view text, std::string_view style) {
    return show(QString::fromUtf8(text), QString::fromUtf8(style));
}

std::string MsgForm::ask(std::string_view question) {
    return TextPrompt(m_appearance, this).ask(QString::fromUtf8(question)).toStdString();
}

} // namespace tessaly
