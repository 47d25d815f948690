#include "ui/window/tool_row.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/drawing/qt_values.h"
#include "ui/window/star_row.h"

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

#include <algorithm>
#include <initializer_list>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int ToolSize = 44;
constexpr int ToolPictureSize = 24;
constexpr int ToolMarkSize = 20;
constexpr int ToolSpacing = 6;
constexpr int GroupSpacing = 14;
constexpr int WidestFileName = 200;
/// Room for the numbers of a library of a million puzzles; a larger one makes its own.
constexpr QLatin1String UsualNumber("1000000");
constexpr int MostDigits = 10;

/// An edit box whose frame is seen on every ground, as that of a button is.
class FramedBox : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        drawFrame(*this);
    }
};

/// Room for this count even while there is none, so that the row rarely moves.
constexpr QLatin1String UsualCount(" of 1000");

} // namespace

ToolRow::ToolRow(QWidget* parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this))
    , m_fileName(new ElidedLabel(this)) {
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(ToolSpacing);
    cmdload = addButton(Picture::Load, u"Load a Puzzle File"_s, u"cmdload"_s);
    addFileName();
    cmdarrow[0] = addButton(Picture::Previous, u"Previous Puzzle"_s, u"cmdarrow_0"_s);
    addNumberBox();
    cmdarrow[1] = addButton(Picture::Next, u"Next Puzzle"_s, u"cmdarrow_1"_s);
    addGap();
    cmdcreate = addButton(Picture::Create, u"Create a New Puzzle"_s, u"cmdcreate"_s);
    DifLab = addDifficultyLabel();
    stars = new StarRow(this);
    m_row->addWidget(stars);
    addGap();
    progress = new RunProgressBar(this);
    m_row->addWidget(progress, 1);
    showPuzzleNumber(0, 0);
}

BoxControl* ToolRow::addButton(Picture picture, const QString& toolTip, const QString& name) {
    auto* button = new BoxControl(picture, toolTip, this);
    button->setObjectName(name);
    button->setFixedSize(ToolSize, ToolSize);
    button->setIconSize({ToolPictureSize, ToolPictureSize});
    m_row->addWidget(button);
    return button;
}

/// Sets the next group apart, as long as nothing else needs the room.
void ToolRow::addGap() {
    m_row->addSpacerItem(new QSpacerItem(GroupSpacing, 0, QSizePolicy::Maximum));
}

/// As wide as the name, but not when there is no room for all of it.
void ToolRow::addFileName() {
    m_fileName->setObjectName(u"PuzFileName"_s);
    m_fileName->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_fileName->setMaximumWidth(WidestFileName);
    m_row->addWidget(m_fileName);
}

void ToolRow::showFile(const std::filesystem::path& path) {
    m_fileName->setText(pathText(path.filename()));
    m_fileName->setToolTip(plainToolTip(pathText(path)));
}

void ToolRow::showFileText(const QString& text) {
    m_fileName->setText(text);
    m_fileName->setToolTip({});
}

void ToolRow::addNumberBox() {
    m_puzNumNow = new FramedBox(this);
    m_puzNumNow->setObjectName(u"PuzNumNow"_s);
    m_puzNumNow->setAccessibleName(tr("Puzzle number"));
    m_puzNumNow->setToolTip(tr("Puzzle number; Enter goes there"));
    m_puzNumNow->setAcceptDrops(false); // a file that is dropped there is for the window
    m_puzNumNow->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_puzNumNow->setMaxLength(MostDigits);
    m_puzNumNow->setFixedHeight(ToolSize);
    connect(m_puzNumNow, &QLineEdit::returnPressed, this,
            [this] { Q_EMIT numberEntered(m_puzNumNow->text().trimmed().toInt()); });
    // Whatever was typed, the box names the puzzle that is shown.
    connect(m_puzNumNow, &QLineEdit::editingFinished, this,
            [this] { m_puzNumNow->setText(m_shownNumber); });
    m_puzNumber = new QLabel(this);
    m_puzNumber->setObjectName(u"puznumber"_s);
    m_puzNumber->setTextFormat(Qt::PlainText);
    m_row->addWidget(m_puzNumNow);
    m_row->addWidget(m_puzNumber);
    m_mark = new PictureView(Picture::None, ToolMarkSize, this);
    m_mark->setObjectName(u"PlayMark"_s);
    m_row->addWidget(m_mark);
}

BoxControl* ToolRow::addDifficultyLabel() {
    auto* label = new BoxControl(this);
    label->setObjectName(u"DifLab"_s);
    label->setToolTip(u"Difficulty Level"_s);
    label->setFixedSize(fontMetrics().horizontalAdvance(u"Random"_s) + 4 * ToolSpacing, ToolSize);
    m_row->addWidget(label);
    return label;
}

void ToolRow::showPuzzleNumber(int number, int count) {
    m_shownNumber = count > 0 ? QString::number(number) : QString();
    m_puzNumNow->setText(m_shownNumber);
    m_puzNumNow->setFixedWidth(2 * ToolSpacing +
                               std::max(fontMetrics().horizontalAdvance(UsualNumber),
                                        fontMetrics().horizontalAdvance(QString::number(count))));
    m_puzNumber->setText(count > 0 ? u" of %1"_s.arg(count) : QString());
    m_puzNumber->setMinimumWidth(std::max(m_puzNumber->fontMetrics().horizontalAdvance(UsualCount),
                                          m_puzNumber->sizeHint().width()));
}

void ToolRow::showPlayMark(Picture mark) {
    m_mark->setPicture(mark);
    m_mark->setAccessibleName(mark == Picture::Solved  ? tr("Solved")
                              : mark == Picture::Begun ? tr("Begun")
                                                       : QString());
}

bool ToolRow::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QWidget* under = childAt(help->pos());
    if (m_solvedText && (under == m_mark || under == m_puzNumber))
        QToolTip::showText(help->globalPos(), m_solvedText(), this);
    return true;
}

void ToolRow::offerOthers(bool inFile) {
    for (QWidget* control : std::initializer_list<QWidget*>{cmdarrow[0], m_puzNumNow, cmdarrow[1]})
        control->setEnabled(inFile);
}

void ToolRow::showDifficulty(DifficultyChoice difficulty) {
    const QKeySequence keys = DifLab->shortcut(); // which a button loses with its text
    DifLab->setText(QString::fromUtf8(nameOf(difficulty)));
    DifLab->setAccessibleName(u"%1: %2"_s.arg(DifLab->toolTip(), DifLab->text()));
    DifLab->setShortcut(keys);
}

} // namespace tessaly
