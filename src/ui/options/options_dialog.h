#pragma once

#include "core/session/options_editor.h"

#include <QDialog>

#include <filesystem>

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

/// The options dialog: shows the samples of an `OptionsEditor` and tells it what the user does. It
/// is made once and hidden between uses.
class Form2x : public QDialog {
    Q_OBJECT

public:
    /// Both must outlive the dialog. `programFolder` holds the library of colour schemes.
    Form2x(Appearance& settings, const std::filesystem::path& programFolder, Prompts& prompts,
           QWidget* parent = nullptr, LockWait wait = {});

    /// Shows the settings in force; the samples of an earlier use are dropped.
    void showOptions();
    /// Names the scheme in force over the list of schemes.
    void showSchemeInForce();

Q_SIGNALS:
    /// The settings have changed, and the dialog is gone: all that shows them is to be redrawn.
    void applied();

private:
    QLayout* makeLeftColumn();
    QLayout* makeRightColumn();
    QGroupBox* makeSchemeFrame();
    QLayout* makeContrast();
    QLayout* makeSchemeButtons();
    QGroupBox* makeFontFrame();
    QLayout* makeSamples();
    QLayout* makeSwitches();
    QLayout* makeDialogButtons();
    QGroupBox* makeFrame(const QString& name, const QString& caption, QLayout* contents);
    /// A frame around one control, which goes by the frame's caption.
    QGroupBox* makeFrame(const QString& name, const QString& caption, QWidget* contents,
                         const QString& toolTip = {});
    BoxControl* makeButton(const QString& caption, const QString& name, int leastWidth);

    /// Lets the editor do something, and shows the samples as they are then, and with `after` what
    /// else has changed.
    template <class Action>
    void react(Action action, void (Form2x::*after)() = nullptr);

    void activate();
    void showSchemes();
    void showScheme();
    /// Over the list, as far as there is room.
    void showSchemeCaption();
    void showSamples();
    void showNumberSample(QLabel& label, Colour colour);
    void apply();

    OptionsEditor m_editor;
    QGroupBox* m_schemeFrame = nullptr;   // Frame1
    ChoiceList* m_schemes = nullptr;      // List1
    QSlider* m_contrast = nullptr;        // ContrastV
    ChoiceList* m_fonts = nullptr;        // List2
    SampleBoard* m_board = nullptr;       // sampleBoard
    ColPik* m_selector = nullptr;         // ColPik1
    QLabel* m_givenSample = nullptr;      // Label1
    QLabel* m_userSample = nullptr;       // Label2
    LineSample* m_borderSample = nullptr; // Line2
    FillSample* m_fillSample = nullptr;   // Shape1
    QCheckBox* m_splitHexas = nullptr;    // Check2
    QCheckBox* m_numBorder = nullptr;     // Check1
    QLineEdit* m_printLine = nullptr;     // Text3
};

} // namespace tessaly
