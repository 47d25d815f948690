#include "ui/controls/message_box.h"

#include "ui/game_window.h"

#include <QRegularExpression>
#include <QScreen>
#include <QTextEdit>
#include <QWindow>

namespace tessaly::message_box_test {

const QString YesNoCancel = u"vbYesNoCancel+vbquestion"_s;

struct MessageBoxTest : testing::Test {
    /// Shows the box and, while it stands, does `meanwhile`.
    int show(const QString& text, const QString& style, const std::function<void()>& meanwhile) {
        inNextDialog([&](QDialog&) { meanwhile(); });
        return form.show(text, style);
    }
    BoxControl& button(int index) const { return find<BoxControl>(form, u"cmd_%1"_s.arg(index)); }
    QTextEdit& text() const { return *form.findChild<QTextEdit*>(); }

    Appearance appearance;
    MsgForm form{appearance};
};

TEST_F(MessageBoxTest, ItsStyleNamesButtonsAndIcon) {
    for (const auto& [style, looks] : {
             std::pair(QString(), u"Ok1"_s),
             {u" vbYESno +\tVBquestion "_s, u"Yes6 No7 icons_0"_s},
             {u"vbok+vbcancel+vberror+vbhappy"_s, u"Ok1 Cancel2 icons_3 icons_5"_s},
             {u"vbcancel+vbok+nonsense"_s, u"Cancel2 Ok1"_s},
             {u"vbabortretryignore+vbcustom"_s, u"Abort3 Retry4 Ignore5 icons_10"_s},
             {u"vbyesnocancel+vbcritical"_s, u"Yes6 No7 Cancel2 icons_4"_s},
             {u"vbcontinuecancel"_s, u"Continue6 Cancel2"_s},
             {u"vbnormal"_s, u"Ok0"_s},
         })
        show(u"Exit?"_s, style, [&, looks = looks, style = style] {
            QStringList shown;
            for (const auto* button : form.findChildren<BoxControl*>())
                shown << button->text() + button->property("Tag").toString();
            for (const auto* icon : form.findChildren<QWidget*>(QRegularExpression(u"^icons"_s)))
                if (icon->isVisible())
                    shown << icon->objectName();
            EXPECT_EQ(shown.join(u' '), looks) << style.toStdString();
        });
}

TEST_F(MessageBoxTest, ItsButtonsAnswerByMouseAndByKeys) {
    const auto key = [this](int index, Qt::Key pressed) {
        QTest::keyClick(&button(index), pressed);
    };
    const std::pair<std::function<void()>, int> rows[] = {
        {[&] { QTest::mouseClick(&button(1), Qt::LeftButton); }, answer::No},
        {[&] { key(0, Qt::Key_Return); }, answer::Yes},
        {[&] { key(0, Qt::Key_Tab), key(1, Qt::Key_Enter); }, answer::No},
        {[&] { key(0, Qt::Key_Right), key(1, Qt::Key_Right), key(2, Qt::Key_Space); },
         answer::Cancel},
        {[&] { key(0, Qt::Key_Escape); }, answer::None},
        {[&] { form.close(); }, answer::None},
        {[&] { // a message meanwhile gets a box of its own
             inNextDialog([this](QDialog& inner) {
                 EXPECT_EQ(inner.parent(), &form);
                 EXPECT_EQ(inner.findChild<QTextEdit*>()->toPlainText(), u"Größe\nfehlt");
             });
             EXPECT_EQ(form.message("Größe\r\nfehlt", {}), answer::None);
             QTest::mouseClick(&button(1), Qt::LeftButton);
         },
         answer::No},
    };
    for (const auto& [act, expected] : rows)
        EXPECT_EQ(show(u"Well?"_s, YesNoCancel, act), expected);
}

TEST_F(MessageBoxTest, StandsOverItsWindowWithTheFocusWhereTheStyleSays) {
    QWidget window;
    window.setGeometry(200, 100, 500, 400);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    show(u"A longer question?\n"_s.repeated(9), u"vbyesno+vbdefaultbutton2"_s, [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return button(1).hasFocus(); })) << "not Yes";
        EXPECT_EQ(form.windowHandle()->transientParent(), window.windowHandle());
        const QPoint off = form.geometry().center() - window.frameGeometry().center();
        EXPECT_LE(off.manhattanLength(), 4);
    });
}

TEST_F(MessageBoxTest, WearsTheSchemeInForceAndFitsTextsOfEveryLength) {
    const Colour background = RGB(20, 20, 30), button1 = RGB(40, 60, 90);
    appearance.SchemeColours[slot::Background] = background;
    appearance.SchemeColours[slot::Button] = button1;
    const QString path = u"/home/"_s + QString(300, u'x');
    for (const QString& message : {QString(), u"No"_s, path, u"word "_s.repeated(2000)})
        show(message, YesNoCancel, [&] {
            EXPECT_EQ(toColour(form.grab().toImage().pixelColor(4, 4)), background);
            EXPECT_EQ(toColour(button(1).faceColour()), button1);
            EXPECT_EQ(toColour(text().palette().text().color()), readableOn(background));
            const QSizeF needed = text().document()->size();
            EXPECT_LE(needed.width(), text().viewport()->width());
            EXPECT_LE(form.height(), form.screen()->availableGeometry().height());
            EXPECT_LE(form.width(), 640);
            const bool scrolls = text().verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn;
            EXPECT_EQ(scrolls, needed.height() > text().height());
            EXPECT_EQ(scrolls, message.size() > 1000);
            EXPECT_TRUE(form.rect().contains(button(2).geometry()));
        });
}

TEST_F(MessageBoxTest, AsksForALineOfText) {
    for (const auto& [way, answered] : {std::pair(u"cancel"_s, ""),
                                        {u"ok"_s, "Größe"},
                                        {u"Escape"_s, ""},
                                        {u"Return"_s, "Größe"}}) {
        inNextDialog([way = way](QDialog& prompt) {
            auto* line = prompt.findChild<QLineEdit*>();
            EXPECT_EQ(line->accessibleName() + line->text(), u"Name <b>?");
            line->setText(u"Größe"_s);
            if (auto* button = prompt.findChild<QWidget*>(way))
                QTest::mouseClick(button, Qt::LeftButton);
            else
                QTest::keyClick(line, way == u"Return" ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(form.ask("Name <b>?"), answered);
    }
}

} // namespace tessaly::message_box_test
