#include "ui/controls/message_box.h"
#include "ui/drawing/qt_colour.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// What the user does in the line that opens within a while.
std::string askedWith(MsgForm& box, const std::function<void(QDialog&)>& answer) {
    QTimer::singleShot(0, &box, [&] {
        auto* prompt = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(prompt, nullptr);
        EXPECT_EQ(prompt->objectName(), u"TextPrompt"_s);
        EXPECT_EQ(toColour(prompt->palette().color(QPalette::Window)), RGB(40, 60, 90));
        QTest::keyClicks(prompt->findChild<QLineEdit*>(), u"Ocean"_s);
        answer(*prompt);
        if (prompt->isVisible())
            prompt->reject();
    });
    return box.ask("Enter new Colour Scheme name");
}

TEST(TextPrompt, AnswersTheLineOrNothing) {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = RGB(40, 60, 90);
    MsgForm box(appearance);
    const auto press = [](Qt::Key key) {
        return [key](QDialog& prompt) { QTest::keyClick(prompt.findChild<QLineEdit*>(), key); };
    };
    const auto click = [](const QString& name) {
        return [name](QDialog& prompt) {
            QTest::mouseClick(prompt.findChild<QWidget*>(name), Qt::LeftButton);
        };
    };
    EXPECT_EQ(askedWith(box, press(Qt::Key_Return)), "Ocean");
    EXPECT_EQ(askedWith(box, click(u"ok"_s)), "Ocean");
    EXPECT_EQ(askedWith(box, press(Qt::Key_Escape)), "");
    EXPECT_EQ(askedWith(box, click(u"cancel"_s)), "");
}

} // namespace
} // namespace tessaly
