#pragma once

#include "core/session/options_editor.h"

#include <QDialog>

class QLabel;

namespace tessaly {

class OptionsForm;

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
    void connectSchemes();
    void connectSamples();
    void connectDialogButtons();

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
    OptionsForm* m_form;
};

} // namespace tessaly
