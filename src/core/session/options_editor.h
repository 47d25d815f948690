#pragma once

#include "core/base/prompts.h"
#include "core/options/appearance.h"
#include "core/options/scheme_library.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaly {

/// What the user does in the options dialog, by the names of its controls. All of it happens to
/// samples, a copy of the settings: only `Apply` and `cmddef` change the settings themselves.
class OptionsEditor {
public:
    static constexpr int UsualContrast = 100;

    /// The buttons that give a sample the selected colour, by their index.
    enum ColourButton { FixedNumber, HexaFill, HexaBorder, UserNumber };

    /// `settings` and `prompts` must outlive the editor. `wait` says how to wait for another
    /// program that is writing the schemes.
    OptionsEditor(Appearance& settings, std::filesystem::path programFolder, Prompts& prompts,
                  LockWait wait = {});

    /// Called when the list of schemes was made anew, before the user is told why.
    void onNewList(std::function<void()> show) { m_showList = std::move(show); }

    /// Starts anew: the samples show the settings, the list of schemes is read, none is selected.
    void open();

    const Appearance& samples() const { return m_samples; }
    /// What stands over the list of schemes; UTF-8.
    const std::string& schemeCaption() const { return m_caption; }
    const std::vector<std::string>& schemeNames() const { return m_library.names(); }
    /// Which of the names is selected.
    std::optional<std::size_t> selectedScheme() const { return m_selected; }
    /// Which of the names is that of the scheme in force.
    std::optional<std::size_t> schemeInForce() const;
    int contrast() const { return m_contrast; }
    /// The colour that the buttons take.
    Colour selectedColour() const { return m_colour; }
    void setSelectedColour(Colour colour) { m_colour = colour; }

    /// Selects a scheme of the list and shows it. When the contrast was another one than the usual,
    /// its return there makes the scheme anew from its base colour.
    void List1_MouseUp(std::size_t index);
    void ContrastV_Change(int contrast);
    /// Makes a scheme of the selected colour and shows it.
    void ShowSch();
    void AddSch();
    void RepSch();
    void DelSch();

    void List2_MouseUp(std::string font);
    /// Gives the sample of a button the selected colour.
    void cmdcol(int index);
    /// The other click on the border's button: the next width, and from the widest the first.
    void widenBorder();
    void Check1_Click(bool numBorder) { m_samples.NumBorder = numBorder; }
    void Check2_Click(bool splitHexas) { m_samples.SplitHexas = splitHexas; }

    /// Brings the defaults into force, the two switches excepted, and starts the samples anew.
    void cmddef();
    /// Makes the samples the settings. The colours of the scheme are the exception: the one who
    /// redraws the windows loads them by the scheme's name.
    void Apply(std::string_view printLine);

    /// Names the scheme in force in the caption again.
    void showSchemeInForce();

private:
    void startSamples();
    void ShowScheme();
    const std::string& selectedEntry() const;
    /// The selected entry, if the user says yes to the question about it, which ends in its name;
    /// else "". `ifNone` is told when none is selected.
    std::string confirmedEntry(const std::string& ifNone, const std::string& question);
    /// Shows the library as it is after an operation and tells how that ended.
    void report(const Outcome& outcome, const std::string& done);
    void tell(const std::string& problem);
    void forgetBorderInBackgroundColour();

    Appearance& m_settings;
    SchemeLibrary m_library;
    Prompts& m_prompts;
    std::function<void()> m_showList = [] {};

    Appearance m_samples;
    std::string m_caption;
    std::optional<std::size_t> m_selected;
    int m_contrast = UsualContrast;
    Colour m_colour = Black;
};

} // namespace tessaly
