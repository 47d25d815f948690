#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>

namespace tessaly {

/// The mark before the caption of a box to tick or of one option among several.
enum class ChoiceMark { Tick, Dot };

/// The room that a button with such a mark needs.
QSize choiceSize(const QAbstractButton& button);

/// Draws mark and caption so that they read on every colour of ground, a dark one included.
void drawChoice(QAbstractButton& button, ChoiceMark mark);

/// A check box or an option button whose mark reads on every colour of ground.
template <class Button, ChoiceMark Mark>
class ChoiceButton : public Button {
public:
    explicit ChoiceButton(const QString& caption, QWidget* parent = nullptr)
        : Button(caption, parent) {
        this->setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override { return choiceSize(*this); }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override {
        return this->rect().contains(position);
    }
    void paintEvent(QPaintEvent*) override { drawChoice(*this, Mark); }
};

using TickBox = ChoiceButton<QCheckBox, ChoiceMark::Tick>;
using OptionDot = ChoiceButton<QRadioButton, ChoiceMark::Dot>;

} // namespace tessaly
