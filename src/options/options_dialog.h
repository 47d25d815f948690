// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "options/options_editor.h"

#include <QDialog>

#include <array>

class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;
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

/// The options dialog: shows the samples of an `OptionsEditor` and tells it what the user does. It
/// is made once and hidden between uses.
class Form2x : public QDialog {
    Q_OBJECT

public:
    /// Both must outlive the dialog. `programFolder` holds the library of colour schemes.
    Form2x(Appearance& settings, const std::string& programFolder, Prompts& prompts,
           QWidget* parent = nullptr);

    /// Shows the settings in force; the samples of an earlier use are dropped.
    void showOptions();
    /// Names the scheme in force over the list of schemes.
    void showSchemeInForce();

Q_SIGNALS:
    /// The settings have changed, and the dialog is gone: all that shows them is to be redrawn.
    void applied();

private:
    QGroupBox* makeFrame(const QString& name, const QString& caption, QBoxLayout* contents,
                         const QString& toolTip = {});
    BoxControl* makeButton(const QString& caption, const QString& name);
    QGroupBox* makeSchemeFrame();
    BoxControl* makeSchemeButton(Picture picture, const QString& name, const QString& toolTip);
    QGroupBox* makeFontFrame();
    QGroupBox* makeSelectorFrame();
    QGroupBox* makeSwitchFrame(const QString& frame, const QString& caption, const QString& toolTip,
                               QCheckBox* box);
    QGroupBox* makePrintLineFrame();
    QLayout* makeSamples();
    BoxControl* makeColourButton(int index, const QString& caption, const QString& toolTip);
    QLayout* makeDialogButtons();
    void arrange();
    void connectSchemes();
    void connectSamples();

    /// Lets the editor do something, and shows the samples as they are then.
    template <class Action>
    void react(Action action);
    template <class Action>
    void reactWithScheme(Action action);
    template <class Action>
    void reactWithLibrary(Action action);

    void activate();
    void showSchemes();
    void showScheme();
    void showSchemeCaption();
    void showSamples();
    void showNumberSample(QLabel& label, Colour colour);
    void apply();

    OptionsEditor m_editor;
    QGroupBox* m_schemeFrame = nullptr; // Frame1
    ChoiceList* m_schemes;              // List1
    QSlider* m_contrast;                // ContrastV
    ChoiceList* m_fonts;                // List2
    ColPik* m_selector;                 // ColPik1
    std::array<BoxControl*, 4> m_colourButtons{};
    QLabel* m_givenSample;      // Label1
    QLabel* m_userSample;       // Label2
    LineSample* m_borderSample; // Line2
    FillSample* m_fillSample;   // Shape1
    QCheckBox* m_numBorder;     // Check1
    QCheckBox* m_splitHexas;    // Check2
    QLineEdit* m_printLine;     // Text3
    SampleBoard* m_board;
};

} // namespace tessaly
