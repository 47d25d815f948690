#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QWidget>

class QPainter;

namespace tessaly {

/// The pictures of the program. Those for buttons are line drawings that take whatever colour they
/// are drawn in; the others have colours of their own.
enum class Picture {
    None,
    // Line drawings.
    Load,
    Previous,
    Next,
    Create,
    Undo,
    Redo,
    Reset,
    Hint,
    ShowSolution,
    PencilMarks,
    SetPairs,
    SetSingles,
    Eraser,
    Pencil,
    CopySides,
    SingleCandidate,
    Close,
    Save,
    Delete,
    Print,
    View,
    Replace,
    Add,
    Begun,
    Solved,
    // Coloured drawings.
    Question,
    Exclamation,
    Information,
    Error,
    Critical,
    Happy,
    TrashCan,
    Printer,
    Light,
    Product,
};

/// Draws a picture as large as fits into the middle of `area`; a line drawing in `colour`.
void drawPicture(QPainter& painter, const QRectF& area, Picture picture, const QColor& colour);

/// A square pixmap of `size` logical pixels, sharp at the given device-pixel ratio.
QPixmap pixmapOf(Picture picture, int size, const QColor& colour, double devicePixelRatio = 1);

/// The program's own icon, in the sizes that window systems ask for.
QIcon productIcon();

/// Shows one picture, sharp at every device-pixel ratio.
class PictureView : public QWidget {
    Q_OBJECT

public:
    PictureView(Picture picture, int size, QWidget* parent = nullptr);

    void setPicture(Picture picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
};

} // namespace tessaly
