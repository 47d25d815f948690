#pragma once

#include "core/board/difficulty.h"

#include <QWidget>

#include <array>
#include <filesystem>
#include <functional>

class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace tessaly {

class BoxControl;
class ElidedLabel;
class PictureView;
class RunProgressBar;
class StarRow;
enum class Picture;

/// The row above the board: opening files and walking through them, and creating puzzles.
class ToolRow : public QWidget {
    Q_OBJECT

public:
    explicit ToolRow(QWidget* parent = nullptr);

    /// Shows a file by its name, with its whole path as the tooltip.
    void showFile(const std::filesystem::path& path);
    /// Shows a text in the place of a file's name.
    void showFileText(const QString& text);
    /// Shows which puzzle of how many is on the board; 0 of 0 clears both.
    void showPuzzleNumber(int number, int count);
    void showDifficulty(DifficultyChoice difficulty);
    /// Marks the puzzle as begun or solved beside its number, or as neither: `Picture::None`.
    void showPlayMark(Picture mark);
    /// What the mark's tooltip says of the whole file when it is asked.
    void setSolvedText(std::function<QString()> text) { m_solvedText = std::move(text); }
    /// Lets the player go to other puzzles of a file, or not where there is none.
    void offerOthers(bool inFile);

    BoxControl* cmdload;
    std::array<BoxControl*, 2> cmdarrow;
    BoxControl* cmdcreate;
    BoxControl* DifLab;
    StarRow* stars;
    RunProgressBar* progress;

Q_SIGNALS:
    /// Enter was pressed in the box; `number` is 0 when what it holds is no number.
    void numberEntered(int number);

protected:
    bool event(QEvent* event) override;

private:
    BoxControl* addButton(Picture picture, const QString& toolTip, const QString& name);
    void addGap();
    void addFileName();
    void addNumberBox();
    BoxControl* addDifficultyLabel();

    QHBoxLayout* m_row;
    ElidedLabel* m_fileName;          // PuzFileName
    QLineEdit* m_puzNumNow = nullptr; // PuzNumNow
    QLabel* m_puzNumber = nullptr;    // puznumber
    PictureView* m_mark = nullptr;    // PlayMark
    QString m_shownNumber;
    std::function<QString()> m_solvedText;
};

} // namespace tessaly
