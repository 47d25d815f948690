#include "ui/controls/message_box.h"

#include "core/session/message_style.h"
#include "ui/controls/box_control.h"
#include "ui/drawing/qt_colour.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace tessaly {
namespace {

class MessageBoxTest : public testing::Test {
protected:
    MessageBoxTest() {
        m_appearance.SchemeColours[slot::Background] = RGB(230, 226, 210);
        m_appearance.SchemeColours[slot::Button] = RGB(40, 60, 90);
    }

    /// Shows the box and, while it stands, does `meanwhile`; a box that still stands then fails
    /// the test and is closed.
    template <class Meanwhile>
    int show(const QString& text, const QString& style, Meanwhile meanwhile) {
        bool wasShown = false;
        QTimer::singleShot(0, &m_form, [&] {
            wasShown = QTest::qWaitForWindowActive(&m_form);
            meanwhile();
            if (!m_form.isVisible())
                return;
            ADD_FAILURE() << "nothing has closed the box";
            m_form.reject();
        });
        const int answer = m_form.show(text, style);
        EXPECT_TRUE(wasShown);
        return answer;
    }

    int show(const QString& style, const std::function<void()>& meanwhile) {
        return show(QStringLiteral("Well?"), style, meanwhile);
    }

    BoxControl* button(int index) const {
        auto* found = m_form.findChild<BoxControl*>(QStringLiteral("cmd_%1").arg(index));
        if (found == nullptr)
            ADD_FAILURE() << "there is no button " << index;
        return found;
    }

    QList<int> visibleIcons() const {
        QList<int> icons;
        for (int index = 0; index <= 10; ++index) {
            const auto* icon = m_form.findChild<QWidget*>(QStringLiteral("icons_%1").arg(index));
            EXPECT_EQ(icon != nullptr, index != 9) << index;
            if (icon != nullptr && icon->isVisible())
                icons << index;
        }
        return icons;
    }

    Appearance m_appearance;
    MsgForm m_form{m_appearance};
};

const QString YesNoCancel = QStringLiteral("vbYesNoCancel+vbquestion");

TEST_F(MessageBoxTest, EveryButtonAnswersItsNumberByMouse) {
    for (const auto& [index, result] : {std::pair{0, 6}, {1, 7}, {2, 2}})
        EXPECT_EQ(
            show(YesNoCancel, [this, i = index] { QTest::mouseClick(button(i), Qt::LeftButton); }),
            result);
    EXPECT_EQ(
        show(QStringLiteral("vbnormal"), [this] { QTest::mouseClick(button(0), Qt::LeftButton); }),
        0);
}

TEST_F(MessageBoxTest, KeysWalkTheButtonsAndEnterAnswers) {
    EXPECT_EQ(show(YesNoCancel,
                   [this] {
                       EXPECT_TRUE(button(0)->hasFocus());
                       QTest::keyClick(&m_form, Qt::Key_Return);
                       EXPECT_TRUE(m_form.isVisible()) << "only the focused button takes the key";
                       QTest::keyClick(button(0), Qt::Key_Return);
                   }),
              answer::Yes);
    EXPECT_EQ(show(YesNoCancel,
                   [this] {
                       QTest::keyClick(button(0), Qt::Key_Tab);
                       EXPECT_TRUE(button(1)->hasFocus());
                       QTest::keyClick(button(1), Qt::Key_Enter);
                   }),
              answer::No);
    EXPECT_EQ(show(YesNoCancel,
                   [this] {
                       QTest::keyClick(button(0), Qt::Key_Right);
                       QTest::keyClick(button(1), Qt::Key_Right);
                       EXPECT_TRUE(button(2)->hasFocus());
                       QTest::keyClick(button(2), Qt::Key_Space);
                   }),
              answer::Cancel);
}

TEST_F(MessageBoxTest, EscapeAndTheCloseBoxAnswerNothing) {
    EXPECT_EQ(show(YesNoCancel, [this] { QTest::keyClick(button(0), Qt::Key_Escape); }), 0);
    EXPECT_EQ(show(YesNoCancel, [this] { m_form.close(); }), 0);
}

TEST_F(MessageBoxTest, AKeyGoingDownSinksTheButtonAndComingUpLetsItGo) {
    show(YesNoCancel, [this] {
        QTest::keyPress(button(0), Qt::Key_X);
        EXPECT_TRUE(button(0)->isDown());
        QTest::keyRelease(button(0), Qt::Key_X);
        EXPECT_FALSE(button(0)->isDown());
        EXPECT_TRUE(m_form.isVisible());

        QTest::mousePress(button(1), Qt::LeftButton);
        EXPECT_TRUE(button(1)->isDown());
        QTest::mouseMove(button(1), {-40, -40});
        QTest::mouseRelease(button(1), Qt::LeftButton, {}, {-40, -40});
        EXPECT_TRUE(m_form.isVisible()) << "the mouse came up elsewhere";
        m_form.close();
    });
}

TEST_F(MessageBoxTest, OneBoxServesOneQuestionAfterTheOther) {
    show(QStringLiteral("Exit?"), YesNoCancel, [this] {
        EXPECT_EQ(visibleIcons(), QList<int>{0});
        EXPECT_EQ(m_form.findChild<QTextEdit*>()->toPlainText(), QStringLiteral("Exit?"));
        EXPECT_EQ(button(1)->text(), QStringLiteral("No"));
        EXPECT_EQ(button(1)->property("Tag"), QVariant(7));
        m_form.close();
    });
    show(QStringLiteral("one\r\ntwo"), QStringLiteral("vbcustom+vbok"), [this] {
        EXPECT_EQ(visibleIcons(), QList<int>{10});
        EXPECT_EQ(m_form.findChild<QTextEdit*>()->toPlainText(), QStringLiteral("one\ntwo"));
        EXPECT_EQ(m_form.findChildren<BoxControl*>().size(), 1);
        m_form.close();
    });
    show({}, {}, [this] {
        EXPECT_EQ(visibleIcons(), QList<int>{});
        EXPECT_EQ(button(0)->text(), QStringLiteral("Ok"));
        m_form.close();
    });
}

TEST_F(MessageBoxTest, AnswersTheCommandsOfTheCoreThroughTheirSeam) {
    Prompts& prompts = m_form;
    QTimer::singleShot(0, &m_form, [this] {
        EXPECT_EQ(m_form.findChild<QTextEdit*>()->toPlainText(), QStringLiteral("Größe?"));
        QTest::mouseClick(button(1), Qt::LeftButton);
    });
    EXPECT_EQ(prompts.message("Größe?", "vbYESno"), answer::No);
}

TEST_F(MessageBoxTest, AMessageWhileAnotherStandsGetsABoxOfItsOwn) {
    EXPECT_EQ(show(YesNoCancel,
                   [this] {
                       QTimer::singleShot(0, &m_form, [this] {
                           auto* inner = m_form.findChild<MsgForm*>();
                           ASSERT_NE(inner, nullptr);
                           inner->reject();
                       });
                       EXPECT_EQ(m_form.show(QStringLiteral("Disk full"), {}), 0);
                       QTest::mouseClick(button(1), Qt::LeftButton);
                   }),
              answer::No);
}

TEST_F(MessageBoxTest, WearsTheSchemeInForce) {
    show(YesNoCancel, [this] {
        const QImage image = m_form.grab().toImage();
        EXPECT_EQ(toColour(image.pixelColor(4, 4)), RGB(230, 226, 210));
        EXPECT_EQ(toColour(button(1)->faceColour()), RGB(40, 60, 90));
        EXPECT_EQ(button(1)->textColour(), QColor(Qt::white));
        m_form.close();
    });
    m_appearance.SchemeColours[slot::Background] = RGB(20, 20, 30);
    show(YesNoCancel, [this] {
        EXPECT_EQ(toColour(m_form.grab().toImage().pixelColor(4, 4)), RGB(20, 20, 30));
        const auto* text = m_form.findChild<QTextEdit*>();
        EXPECT_EQ(text->palette().color(QPalette::Text), QColor(Qt::white));
        m_form.close();
    });
}

TEST_F(MessageBoxTest, TextsOfEveryLengthFit) {
    const QString path = QStringLiteral("/home/") % QString(300, QLatin1Char('x'));
    for (const QString& text :
         {QString(), QStringLiteral("No"), path, QStringLiteral("word ").repeated(2000)})
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
            m_form.close();
        });
}

} // namespace
} // namespace tessaly
