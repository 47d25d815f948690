#include "core/session/options_editor.h"

#include "core/base/text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessaly {
namespace {

constexpr const char* YesOrRatherNo = "vbYesNo+vbquestion+vbdefaultbutton2";

std::optional<std::size_t> indexOf(const std::vector<std::string>& names, const std::string& name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return {};
    return static_cast<std::size_t>(found - names.begin());
}

std::string captionOf(const std::string& scheme) {
    return "Colour Scheme: " + scheme;
}

/// `scheme` as the user typed it, or the scheme's file name.
std::string done(const std::string& scheme, const std::string& what) {
    return "Colour Scheme: " + scheme + " " + what;
}

/// The width of border lines that a text means: the number at its start, rounded to a whole one,
/// halves to even, and at least 1. A text without a number gives 1, a number beyond all bounds the
/// largest there is.
int printLineWidth(std::string_view text) {
    constexpr double Largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(leadingNumber(text)), 1.0, Largest));
}

/// What the player writes takes the scheme's own colour, where it reads, so that it is told from
/// the givens.
Colour userNumberColourOn(Colour background, const SchemeColours& colours) {
    constexpr double LeastContrast = 4.5; // of WCAG 2, for text
    const Colour own = colours[slot::DarkRed];
    return contrastRatio(own, background) >= LeastContrast ? own : readableOn(background);
}

/// A scheme's file name without what follows its first dot.
std::string bareName(const std::string& file) {
    return file.substr(0, file.find('.'));
}

} // namespace

OptionsEditor::OptionsEditor(Appearance& settings, std::filesystem::path programFolder,
                             Prompts& prompts, LockWait wait)
    : m_settings(settings)
    , m_library(std::move(programFolder), std::move(wait))
    , m_prompts(prompts)
    , m_samples(settings) {
    showSchemeInForce();
}

void OptionsEditor::open() {
    const Outcome listed = m_library.RefreshSchemeList();
    startSamples();
    if (!listed.ok())
        tell(listed.problem);
}

void OptionsEditor::startSamples() {
    m_samples = m_settings;
    m_selected.reset();
    m_contrast = UsualContrast;
    m_colour = m_settings.SchemeColours[slot::Background];
    showSchemeInForce();
}

void OptionsEditor::showSchemeInForce() {
    m_caption = captionOf(bareName(m_settings.ActiveScheme));
}

std::optional<std::size_t> OptionsEditor::schemeInForce() const {
    const auto name = listedName(m_settings.ActiveScheme);
    return name ? indexOf(schemeNames(), std::string(*name)) : std::nullopt;
}

const std::string& OptionsEditor::selectedEntry() const {
    static const std::string None;
    return m_selected ? schemeNames()[*m_selected] : None;
}

void OptionsEditor::ShowScheme() {
    const Colour background = m_samples.SchemeColours[slot::Background];
    m_caption = captionOf(selectedEntry());
    m_colour = background;
    m_samples.HexaFillColour = background;
    m_samples.HexaBorderColour = m_samples.FixedNumberColour = readableOn(background);
    m_samples.UserNumberColour = userNumberColourOn(background, m_samples.SchemeColours);
}

void OptionsEditor::List1_MouseUp(std::size_t index) {
    m_selected = index;
    const std::string file = selectedEntry() + std::string(SchemeExtension);
    const Outcome loaded = m_library.LoadScheme(file, m_samples);
    if (!loaded.ok()) {
        tell(loaded.problem);
        return;
    }
    m_colour = m_samples.SchemeColours[slot::Background];
    if (std::exchange(m_contrast, UsualContrast) != UsualContrast)
        BuildScheme(m_colour, m_contrast, m_samples.SchemeColours);
    ShowScheme();
}

void OptionsEditor::ContrastV_Change(int contrast) {
    m_contrast = contrast;
    ShowSch();
}

void OptionsEditor::ShowSch() {
    BuildScheme(m_colour, m_contrast, m_samples.SchemeColours);
    ShowScheme();
}

void OptionsEditor::AddSch() {
    const std::string name = m_prompts.ask("Enter new Colour Scheme name");
    if (name.empty())
        return;
    const Outcome added = m_library.AddScheme(name, m_samples.SchemeColours);
    if (added.ok())
        m_selected.reset(); // the list was made anew
    report(added, done(name, "added"));
}

void OptionsEditor::RepSch() {
    const std::string entry =
        confirmedEntry("Select a colour scheme to replace", "Replace colour scheme: ");
    if (entry.empty())
        return;
    const Outcome replaced = m_library.ReplaceScheme(entry, m_samples.SchemeColours);
    m_selected = indexOf(schemeNames(), entry); // another instance may have moved it
    report(replaced, done(schemeHeader(entry), "replaced"));
}

void OptionsEditor::DelSch() {
    const std::string entry =
        confirmedEntry("Select a colour scheme to delete", "Delete colour scheme: ");
    if (entry.empty())
        return;
    if (isSchemeInForce(entry, m_settings.ActiveScheme)) {
        tell("Cannot delete currently active Colour Scheme");
        return;
    }
    const Outcome deleted = m_library.DeleteScheme(entry);
    if (deleted.ok())
        m_selected.reset();
    report(deleted, done(schemeHeader(entry), "deleted"));
}

void OptionsEditor::List2_MouseUp(std::string font) {
    m_samples.NumberFont = std::move(font);
}

void OptionsEditor::forgetBorderInBackgroundColour() {
    const Colour background = m_samples.SchemeColours[slot::Background];
    if (m_samples.HexaBorderColour == background)
        m_samples.HexaBorderColour = readableOn(background);
}

void OptionsEditor::cmdcol(int index) {
    switch (index) {
    case FixedNumber:
        m_samples.FixedNumberColour = m_colour;
        break;
    case HexaFill:
        m_samples.HexaFillColour = m_colour;
        break;
    case HexaBorder:
        m_samples.HexaBorderColour = m_colour;
        break;
    case UserNumber:
        m_samples.UserNumberColour = m_colour;
        break;
    default:
        break;
    }
}

void OptionsEditor::widenBorder() {
    forgetBorderInBackgroundColour();
    m_samples.HexaBorderWidth = m_samples.HexaBorderWidth % MaxBorderWidth + 1;
}

void OptionsEditor::cmddef() {
    m_settings.ActiveScheme = DefaultScheme;
    const Outcome loaded = m_library.LoadScheme(DefaultScheme, m_settings);
    m_settings.PrintLineWidth = DefaultPrintLineWidth;
    m_settings.NumberFont = DefaultNumberFont;
    m_settings.HexaBorderColour = Black;
    m_settings.FixedNumberColour = Black;
    m_settings.UserNumberColour = Black;
    m_settings.HexaFillColour = m_settings.SchemeColours[slot::Button];
    m_settings.HexaBorderWidth = DefaultBorderWidth;
    startSamples();
    if (!loaded.ok())
        tell(loaded.problem);
}

void OptionsEditor::Apply(std::string_view printLine) {
    std::string scheme = m_settings.ActiveScheme;
    if (!selectedEntry().empty())
        scheme = selectedEntry() + std::string(SchemeExtension);
    const SchemeColours colours = m_settings.SchemeColours;
    m_settings = m_samples;
    m_settings.ActiveScheme = std::move(scheme);
    m_settings.SchemeColours = colours;
    m_settings.PrintLineWidth = printLineWidth(printLine);
}

std::string OptionsEditor::confirmedEntry(const std::string& ifNone, const std::string& question) {
    const std::string& entry = selectedEntry();
    if (entry.empty()) {
        tell(ifNone);
        return {};
    }
    return m_prompts.message(question + entry, YesOrRatherNo) == answer::Yes ? entry
                                                                             : std::string();
}

void OptionsEditor::report(const Outcome& outcome, const std::string& done) {
    m_showList();
    if (outcome.ok())
        m_prompts.message(done, style::Information);
    else
        tell(outcome.problem);
}

void OptionsEditor::tell(const std::string& problem) {
    m_prompts.message(problem, style::Critical);
}

} // namespace tessaly
