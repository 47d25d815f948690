#include "ui/controls/dot_row.h"

#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"

#include <QHBoxLayout>

#include <algorithm>

namespace tessaly {

DotRow::DotRow(const QString& name, const QStringList& captions, QWidget* parent)
    : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(dialog::Spacing);
    for (const QString& caption : captions) {
        auto* dot = named(name + QChar(u'_') + caption, new OptionDot(caption, this));
        row->addWidget(dot);
        m_dots.push_back(dot);
        connect(dot, &QRadioButton::toggled, this, [this](bool isChosen) {
            if (isChosen)
                showChoice();
        });
    }
    row->addStretch();
    m_dots.front()->setChecked(true);
}

std::size_t DotRow::chosen() const {
    const auto isChosen = [](const QRadioButton* dot) { return dot->isChecked(); };
    return static_cast<std::size_t>(std::find_if(m_dots.begin(), m_dots.end(), isChosen) -
                                    m_dots.begin());
}

void DotRow::choose(std::size_t place) {
    m_dots.at(place)->setChecked(true);
}

void DotRow::showChoice() {
    for (QRadioButton* dot : m_dots)
        dot->setFocusPolicy(dot->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(m_dots.at(chosen()));
    Q_EMIT changed();
}

} // namespace tessaly
