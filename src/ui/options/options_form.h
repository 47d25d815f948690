#pragma once

#include <QWidget>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QSlider;

namespace tessaly {

class BoxControl;
class ChoiceList;
class ColPik;
class FillSample;
class LineSample;
class SampleBoard;
enum class Picture;

/// The controls and the samples of the options dialog, and where they stand; what they do is the
/// dialog's.
class OptionsForm : public QWidget {
    Q_OBJECT

public:
    explicit OptionsForm(QWidget* parent = nullptr);

    /// Names a scheme over the list of schemes, as far as there is room.
    void showSchemeCaption(const QString& caption);

    ChoiceList* schemes;      // List1
    QSlider* contrast;        // ContrastV
    ChoiceList* fonts;        // List2
    ColPik* selector;         // ColPik1
    QLabel* givenSample;      // Label1
    QLabel* userSample;       // Label2
    LineSample* borderSample; // Line2
    FillSample* fillSample;   // Shape1
    QCheckBox* numBorder;     // Check1
    QCheckBox* splitHexas;    // Check2
    QLineEdit* printLine;     // Text3
    SampleBoard* board;
    BoxControl* ShowSch;
    BoxControl* AddSch;
    BoxControl* RepSch;
    BoxControl* DelSch;
    /// By `OptionsEditor::ColourButton`.
    std::array<BoxControl*, 4> cmdcol{};
    BoxControl* cmddef = nullptr;
    BoxControl* apply = nullptr; // Command1
    BoxControl* exit = nullptr;  // Command2

private:
    void setUpLists();
    void setUpContrast();
    BoxControl* makeButton(const QString& caption, const QString& name, int leastWidth);
    QGroupBox* makeFrame(const QString& name, const QString& caption, QLayout* contents);
    QGroupBox* makeFrame(const QString& name, const QString& caption, QWidget* contents,
                         const QString& toolTip = {});
    QGroupBox* makeSchemeFrame();
    QLayout* makeSamples();
    QLayout* makeSwitches();
    QLayout* makeLeftColumn();
    QLayout* makeRightColumn();
    QLayout* makeDialogButtons();

    QGroupBox* m_schemeFrame; // Frame1
};

} // namespace tessaly
