#include "core/session/options_editor.h"

#include "core/options/scheme_library.h"
#include "support/core_fakes.h"
#include "support/temporary_folder.h"

#include <limits>

namespace tessaly::options_editor_test {

constexpr Colour Orange = RGB(250, 150, 20);
constexpr Colour Dark = RGB(20, 30, 40);

SchemeColours built(Colour base, int contrast = 100) {
    SchemeColours colours{};
    BuildScheme(base, contrast, colours);
    return colours;
}

struct OptionsEditorTest : testing::Test {
    OptionsEditorTest() {
        put(m_file, schemeRecord("xp.col", built(RGB(226, 234, 241), 30)) +
                        schemeRecord("Rose.col", built(RGB(236, 205, 211), 60)) +
                        schemeRecord("night.col", built(Dark, 20)));
        EXPECT_TRUE(library.LoadScheme("xp.col", settings).ok());
        settings.HexaFillColour = Orange;
        settings.UserNumberColour = RGB(1, 2, 3);
        before = settings;
        editor.open();
    }

    SchemeColours stored(const std::string& file) const {
        Appearance loaded;
        EXPECT_EQ(library.LoadScheme(file, loaded).problem, "");
        return loaded.SchemeColours;
    }
    SchemeColours shown() const { return editor.samples().SchemeColours; }
    /// Does something that the user answers with these numbers, and returns what is told last.
    std::string told(void (OptionsEditor::*action)(), std::deque<int> answers = {}) {
        prompts.answers = std::move(answers);
        (editor.*action)();
        const std::string all = prompts.told();
        return all.substr(all.rfind('|') + 1);
    }
    std::string added(const char* name) {
        prompts.lines = {name};
        return told(&OptionsEditor::AddSch);
    }
    std::string replaced(int answer) { return told(&OptionsEditor::RepSch, {answer}); }
    std::string deleted(int answer) { return told(&OptionsEditor::DelSch, {answer}); }

    TemporaryFolder folder;
    std::filesystem::path m_file = folder / "all.col";
    SchemeLibrary library{folder.path() / ""};
    Appearance settings;
    Appearance before;
    ScriptedPrompts prompts;
    OptionsEditor editor{settings, folder.path() / "", prompts};
};

TEST_F(OptionsEditorTest, StartsFromTheSettingsWithNoSchemeSelected) {
    EXPECT_EQ(editor.samples(), settings);
    EXPECT_FALSE(editor.selectedScheme());
    EXPECT_EQ(editor.schemeInForce(), 0U);
    EXPECT_EQ(editor.selectedColour(), settings.SchemeColours[slot::Background]);
    for (const auto& [scheme, caption] :
         {std::pair{"xp", "Colour Scheme: xp"}, {"my.own.col", "Colour Scheme: my"}}) {
        settings.ActiveScheme = scheme;
        editor.showSchemeInForce();
        EXPECT_EQ(editor.schemeCaption(), caption);
        EXPECT_FALSE(editor.schemeInForce()) << "no name of a record";
    }
}

TEST_F(OptionsEditorTest, AChosenSchemeShowsWithNeutralSamplesAndChangesNoSetting) {
    // The user's numbers take the scheme's dark red where it reads.
    for (const auto& [index, name, neutral, own] :
         {std::tuple(1U, "Rose", Black, RGB(128, 0, 0)), {2U, "night", White, White}}) {
        editor.List1_MouseUp(index);
        Appearance expected = before;
        expected.SchemeColours = stored(std::string(name) + ".col");
        expected.HexaFillColour = expected.SchemeColours[slot::Background];
        expected.HexaBorderColour = expected.FixedNumberColour = neutral;
        expected.UserNumberColour = own;
        EXPECT_EQ(editor.samples(), expected);
        EXPECT_EQ(editor.schemeCaption(), std::string("Colour Scheme: ") + name);
        EXPECT_EQ(editor.selectedColour(), expected.HexaFillColour);
    }
    EXPECT_EQ(settings, before);
    editor.open();
    EXPECT_EQ(editor.samples(), before) << "what was not applied is dropped";

    put(m_file, schemeRecord("xp.col", built(White)));
    editor.List1_MouseUp(1);
    EXPECT_EQ(prompts.told(), "|Colour Scheme: Rose.col not found [vbok+vbcritical]");
    EXPECT_EQ(shown(), before.SchemeColours);
}

TEST_F(OptionsEditorTest, ContrastAndBorderWidthMakeTheSamplesAnew) {
    editor.setSelectedColour(Orange);
    editor.ContrastV_Change(-100);
    EXPECT_EQ(shown(), built(Orange, -100));
    EXPECT_EQ(editor.samples().HexaFillColour, Orange);
    editor.setSelectedColour(shown()[slot::Background]);
    editor.cmdcol(OptionsEditor::HexaBorder);
    for (int width : {3, 4, 5, 1, 2}) { // they go round
        editor.widenBorder();
        EXPECT_EQ(editor.samples().HexaBorderWidth, width);
        EXPECT_EQ(editor.samples().HexaBorderColour, Black) << "never the ground's";
    }
    // The contrast's way back to the usual contrast makes a scheme too, instead of the one that was
    // loaded.
    const Colour rose = stored("Rose.col")[slot::Background];
    for (const SchemeColours& colours : {built(rose), stored("Rose.col")}) {
        editor.List1_MouseUp(1);
        EXPECT_EQ(shown(), colours);
    }
}

TEST_F(OptionsEditorTest, ApplyTakesTheSamplesButLeavesTheSchemesColoursToTheirLoading) {
    editor.List1_MouseUp(1);
    editor.setSelectedColour(Orange);
    for (int index : {0, 1, 2, 3, 4, 99})
        editor.cmdcol(index);
    editor.widenBorder();
    editor.List2_MouseUp("Courier New");
    editor.Check1_Click(true);
    editor.Check2_Click(true);
    editor.Apply("2.5");
    Appearance expected = before;
    expected.ActiveScheme = "Rose.col";
    expected.FixedNumberColour = expected.HexaFillColour = Orange;
    expected.HexaBorderColour = expected.UserNumberColour = Orange;
    expected.HexaBorderWidth = 3;
    expected.NumberFont = "Courier New";
    expected.NumBorder = expected.SplitHexas = true;
    expected.PrintLineWidth = 2;
    EXPECT_EQ(settings, expected);

    editor.open();
    editor.ContrastV_Change(50);
    constexpr int Most = std::numeric_limits<int>::max();
    const std::pair<const char*, int> widths[] = {
        {"  7 px", 7}, {"2.5", 2}, {"3.5", 4},      {"+4e1", 40},  {"", 1},
        {"-3", 1},     {"nan", 1}, {"1e999", Most}, {"-1e999", 1}, {"99999.4", 99999}};
    for (const auto& [text, width] : widths) {
        editor.Apply(text);
        EXPECT_EQ(settings.PrintLineWidth, width) << text;
    }
    EXPECT_EQ(settings.ActiveScheme, "Rose.col") << "no scheme was selected";
}

TEST_F(OptionsEditorTest, DefaultIsInForceAtOnceAndLeavesTheSwitches) {
    settings.ActiveScheme = "Rose.col";
    settings.NumBorder = settings.SplitHexas = true;
    settings.NumberFont = "Courier New";
    settings.HexaBorderWidth = settings.PrintLineWidth = 5;
    editor.open();
    editor.List1_MouseUp(2);
    editor.cmddef();
    Appearance expected;
    expected.SchemeColours = stored("xp.col");
    expected.UserNumberColour = Black;
    expected.HexaFillColour = expected.SchemeColours[slot::Button];
    expected.NumBorder = expected.SplitHexas = true;
    EXPECT_EQ(settings, expected);
    EXPECT_EQ(editor.samples(), expected);
    EXPECT_FALSE(editor.selectedScheme()) << "or Apply would bring the selected scheme back";
}

TEST_F(OptionsEditorTest, AddsTheSchemeThatIsShown) {
    EXPECT_EQ(added(""), "");
    editor.setSelectedColour(Orange);
    editor.ShowSch();
    EXPECT_EQ(added("OCEAN"), "Colour Scheme: OCEAN added [vbok+vbinformation]");
    EXPECT_EQ(stored("ocean.col"), built(Orange));
    EXPECT_FALSE(editor.selectedScheme()) << "the list was made anew";
    EXPECT_EQ(added("Ocean"), "Colour Scheme: Ocean already exists [vbok+vbcritical]");
    added(".col");
    editor.List1_MouseUp(4);
    EXPECT_EQ(told(&OptionsEditor::RepSch), "Select a colour scheme to replace [vbok+vbcritical]");
    EXPECT_EQ(told(&OptionsEditor::DelSch), "Select a colour scheme to delete [vbok+vbcritical]");
    editor.Apply("2");
    EXPECT_EQ(settings.ActiveScheme, "xp.col") << "one without a name is never chosen";
}

TEST_F(OptionsEditorTest, ReplacesAndDeletesTheSelectedSchemeAfterAQuestion) {
    const std::string untouched = contentOf(m_file);
    editor.List1_MouseUp(2);
    const std::string question = " colour scheme: night [vbYesNo+vbquestion+vbdefaultbutton2]";
    EXPECT_EQ(replaced(answer::No), "Replace" + question);
    EXPECT_EQ(deleted(answer::None), "Delete" + question);
    EXPECT_EQ(contentOf(m_file), untouched);

    editor.setSelectedColour(Orange);
    editor.ShowSch();
    EXPECT_EQ(replaced(answer::Yes), "Colour Scheme: night.col replaced [vbok+vbinformation]");
    EXPECT_EQ(stored("night.col"), built(Orange));
    EXPECT_EQ(editor.selectedScheme(), 2U);
    EXPECT_EQ(deleted(answer::Yes), "Colour Scheme: night.col deleted [vbok+vbinformation]");
    EXPECT_FALSE(editor.selectedScheme());
    // The scheme in force is guarded by its bare name, and a header in capitals is not looked for.
    for (const auto& [inForce, told] :
         {std::pair("XP", "Cannot delete currently active Colour Scheme [vbok+vbcritical]"),
          {"xp.col", "Colour Scheme: xp.col deleted [vbok+vbinformation]"},
          {"xp.col", "Colour Scheme: rose.col deleted [vbok+vbinformation]"}}) {
        editor.List1_MouseUp(0);
        settings.ActiveScheme = inForce;
        EXPECT_EQ(deleted(answer::Yes), told);
    }
    EXPECT_EQ(editor.schemeNames(), std::vector<std::string>{"Rose"});

    // Another instance may change the library.
    put(m_file, untouched);
    editor.open();
    editor.List1_MouseUp(2);
    for (const auto& [gone, selected] :
         {std::pair("xp", std::optional<std::size_t>(1)), {"night", {}}}) {
        EXPECT_TRUE(library.DeleteScheme(gone).ok());
        replaced(answer::Yes);
        EXPECT_EQ(editor.selectedScheme(), selected);
    }
}

TEST_F(OptionsEditorTest, WithoutTheSchemesTheRestCanStillBeSet) {
    editor.List1_MouseUp(1);
    std::filesystem::remove(m_file);
    EXPECT_TRUE(added("new").starts_with("Error in adding Colour Scheme:\r\n"));
    EXPECT_TRUE(deleted(answer::Yes).ends_with(": does not exist [vbok+vbcritical]"));
    EXPECT_EQ(editor.selectedScheme(), 1U) << "where it is all as before";
    EXPECT_TRUE(told(&OptionsEditor::open).starts_with(m_file.native()));
    settings.HexaBorderWidth = 5;
    EXPECT_TRUE(told(&OptionsEditor::cmddef).starts_with(m_file.native()));
    EXPECT_EQ(settings.HexaBorderWidth, Appearance().HexaBorderWidth);
}

} // namespace tessaly::options_editor_test
