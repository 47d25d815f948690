#include "ui/controls/message_box.h"

#include "ui/controls/box_control.h"
#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWindow>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

const QString YesNoCancel = u"vbYesNoCancel+vbquestion"_s;

class MessageBoxTest : public testing::Test {
protected:
    MessageBoxTest() {
        m_appearance.SchemeColours[slot::Background] = RGB(230, 226, 210);
        m_appearance.SchemeColours[slot::Button] = RGB(40, 60, 90);
    }

    /// Shows the box and, while it stands, does `meanwhile`; a box that still stands then is
    /// closed.
    template <class Meanwhile>
    int show(const QString& text, const QString& style, Meanwhile meanwhile) {
        bool wasShown = false;
        QTimer::singleShot(0, &m_form, [&] {
            wasShown = QTest::qWaitForWindowActive(&m_form);
            meanwhile();
            if (m_form.isVisible())
                m_form.reject();
        });
        const int answer = m_form.show(text, style);
        EXPECT_TRUE(wasShown);
        return answer;
    }

    BoxControl* button(int index) const {
        return m_form.findChild<BoxControl*>(u"cmd_%1"_s.arg(index));
    }
    QString buttons() const {
        QStringList all;
        for (int index = 0; button(index) != nullptr; ++index)
            all << button(index)->text() + u' ' + button(index)->property("Tag").toString();
        return all.join(u", "_s);
    }
    /// The number of the icon shown; -1 for none.
    int icon() const {
        int shown = -1;
        for (int number = 0; number <= 10; ++number)
            if (const auto* icon = m_form.findChild<QWidget*>(u"icons_%1"_s.arg(number));
                icon != nullptr && icon->isVisible()) {
                EXPECT_EQ(shown, -1) << "two icons";
                shown = number;
            }
        return shown;
    }

    Appearance m_appearance;
    MsgForm m_form{m_appearance};
};

TEST_F(MessageBoxTest, ItsStyleNamesButtonsAndIcon) {
    struct Row {
        QString style;
        QString buttons;
        int icon;
    };
    for (const Row& row : {
             Row{{}, u"Ok 1"_s, -1},
             {u" vbYESno +\tVBquestion "_s, u"Yes 6, No 7"_s, 0},
             {u"vbquestion+vbyesno"_s, u"Yes 6, No 7"_s, 0},
             {u"vbok+vbcancel+vberror+vbhappy"_s, u"Ok 1, Cancel 2"_s, 5},
             {u"vbcancel+vbok+nonsense"_s, u"Cancel 2, Ok 1"_s, -1},
             {u"vbcancelok"_s, u"Ok 1, Cancel 2"_s, -1},
             {u"vbabortretryignore+vbcustom"_s, u"Abort 3, Retry 4, Ignore 5"_s, 10},
             {u"vbyesnocancel+vbcritical"_s, u"Yes 6, No 7, Cancel 2"_s, 4},
             {u"vbcontinuecancel"_s, u"Continue 6, Cancel 2"_s, -1},
             {u"vbnormal"_s, u"Ok 0"_s, -1},
         })
        show(u"Exit?"_s, row.style, [&] {
            EXPECT_EQ(buttons(), row.buttons) << row.style.toStdString();
            EXPECT_EQ(icon(), row.icon) << row.style.toStdString();
        });
}

TEST_F(MessageBoxTest, ItsButtonsAnswerByMouseAndByKeys) {
    const auto key = [this](int index, Qt::Key pressed) {
        QTest::keyClick(button(index), pressed);
    };
    struct Row {
        std::function<void()> act;
        int answer;
    };
    for (const Row& row : {
             Row{[&] { QTest::mouseClick(button(1), Qt::LeftButton); }, answer::No},
             {[&] { key(0, Qt::Key_Return); }, answer::Yes},
             {[&] { key(0, Qt::Key_Tab), key(1, Qt::Key_Enter); }, answer::No},
             {[&] { key(0, Qt::Key_Right), key(1, Qt::Key_Right), key(2, Qt::Key_Space); },
              answer::Cancel},
             {[&] { key(0, Qt::Key_Escape); }, answer::None},
             {[&] { m_form.close(); }, answer::None},
             {[&] { QTest::keyClick(&m_form, Qt::Key_Return); }, answer::None},
         })
        EXPECT_EQ(show(u"Well?"_s, YesNoCancel, row.act), row.answer);
}

TEST_F(MessageBoxTest, StandsOverItsWindowWithTheFocusWhereTheStyleSays) {
    QWidget window;
    window.setGeometry(200, 100, 500, 400);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const QString& text : {u"Delete?"_s, u"A longer question?\n"_s.repeated(9)})
        show(text, u"vbyesno+vbdefaultbutton2"_s, [&] {
            EXPECT_TRUE(QTest::qWaitFor([&] { return button(1)->hasFocus(); })) << "not Yes";
            EXPECT_EQ(m_form.windowHandle()->transientParent(), window.windowHandle());
            const QPoint off = m_form.geometry().center() - window.frameGeometry().center();
            EXPECT_LE(off.manhattanLength(), 4) << text.toStdString();
        });
}

TEST_F(MessageBoxTest, AKeyGoingDownSinksTheButtonAndComingUpLetsItGo) {
    show(u"Well?"_s, YesNoCancel, [this] {
        QTest::keyPress(button(0), Qt::Key_X);
        EXPECT_TRUE(button(0)->isDown());
        QTest::keyRelease(button(0), Qt::Key_X);
        EXPECT_FALSE(button(0)->isDown());
        EXPECT_TRUE(m_form.isVisible());
    });
}

TEST_F(MessageBoxTest, AMessageWhileAnotherStandsGetsABoxOfItsOwn) {
    Prompts& prompts = m_form;
    EXPECT_EQ(show(u"Well?"_s, YesNoCancel,
                   [&] {
                       QTimer::singleShot(0, &m_form, [this] {
                           auto* inner = m_form.findChild<MsgForm*>();
                           ASSERT_NE(inner, nullptr);
                           EXPECT_EQ(inner->findChild<QTextEdit*>()->toPlainText(),
                                     u"Größe\nfehlt");
                           inner->reject();
                       });
                       EXPECT_EQ(prompts.message("Größe\r\nfehlt", {}), answer::None);
                       QTest::mouseClick(button(1), Qt::LeftButton);
                   }),
              answer::No);
}

TEST_F(MessageBoxTest, WearsTheSchemeInForce) {
    for (const Colour background : {RGB(230, 226, 210), RGB(20, 20, 30)}) {
        m_appearance.SchemeColours[slot::Background] = background;
        show(u"Well?"_s, YesNoCancel, [&] {
            EXPECT_EQ(toColour(m_form.grab().toImage().pixelColor(4, 4)), background);
            EXPECT_EQ(toColour(button(1)->faceColour()), RGB(40, 60, 90));
            EXPECT_EQ(toColour(m_form.findChild<QTextEdit*>()->palette().text().color()),
                      readableOn(background));
        });
    }
}

TEST_F(MessageBoxTest, TextsOfEveryLengthFit) {
    const QString path = u"/home/"_s + QString(300, u'x');
    for (const QString& text : {QString(), u"No"_s, path, u"word "_s.repeated(2000)})
        show(text, YesNoCancel, [&] {
            const auto* shown = m_form.findChild<QTextEdit*>();
            const QSizeF needed = shown->document()->size();
            EXPECT_LE(needed.width(), shown->viewport()->width());
            EXPECT_LE(m_form.height(), m_form.screen()->availableGeometry().height());
            EXPECT_LE(m_form.width(), 640);
            const bool scrolls = shown->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn;
            EXPECT_EQ(scrolls, needed.height() > shown->height());
            EXPECT_EQ(scrolls, text.size() > 1000);
            for (int i = 0; i < 3; ++i)
                EXPECT_TRUE(m_form.rect().contains(button(i)->geometry()));
        });
}

TEST_F(MessageBoxTest, AsksForALineOfText) {
    const auto answered = [this](auto act) {
        QTimer::singleShot(0, &m_form, [act] {
            auto* prompt = QApplication::activeModalWidget();
            ASSERT_NE(prompt, nullptr);
            auto* line = prompt->findChild<QLineEdit*>();
            EXPECT_EQ(line->accessibleName(), u"Name <b>?");
            EXPECT_TRUE(line->text().isEmpty());
            line->setText(u"Größe"_s);
            act(*prompt);
        });
        return m_form.ask("Name <b>?");
    };
    EXPECT_EQ(answered([](QWidget& prompt) { QTest::keyClick(&prompt, Qt::Key_Escape); }), "");
    EXPECT_EQ(answered([](QWidget& prompt) {
                  QTest::mouseClick(prompt.findChild<BoxControl*>(u"cancel"_s), Qt::LeftButton);
              }),
              "");
    EXPECT_EQ(answered([](QWidget& prompt) {
                  QTest::keyClick(prompt.findChild<QLineEdit*>(), Qt::Key_Return);
              }),
              "Größe");
    EXPECT_EQ(answered([](QWidget& prompt) {
                  QTest::mouseClick(prompt.findChild<BoxControl*>(u"ok"_s), Qt::LeftButton);
              }),
              "Größe");
}

} // namespace
} // namespace tessaly
