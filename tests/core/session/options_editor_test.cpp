#include "core/session/options_editor.h"

#include "core/options/scheme_library.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessaly {
namespace {

constexpr Colour Orange = RGB(250, 150, 20);
constexpr Colour Dark = RGB(20, 30, 40);

SchemeColours built(Colour base, int contrast = 100) {
    SchemeColours colours{};
    BuildScheme(base, contrast, colours);
    return colours;
}

class OptionsEditorTest : public testing::Test {
protected:
    OptionsEditorTest() {
        test::put(m_file, schemeRecord("xp.col", built(RGB(226, 234, 241), 30)) +
                              schemeRecord("Rose.col", built(RGB(236, 205, 211), 60)) +
                              schemeRecord("night.col", built(Dark, 20)));
        EXPECT_TRUE(library().LoadScheme("xp.col", settings).ok());
        settings.HexaFillColour = Orange;
        settings.UserNumberColour = RGB(1, 2, 3);
        before = settings;
        editor.open();
    }

    SchemeLibrary library() const { return SchemeLibrary(folder.path().native() + "/"); }
    SchemeColours stored(const std::string& file) const {
        Appearance loaded;
        EXPECT_EQ(library().LoadScheme(file, loaded).problem, "");
        return loaded.SchemeColours;
    }
    std::string lastMessage() const { return prompts.shown.back().text; }

    test::TemporaryFolder folder;
    std::filesystem::path m_file = folder / "all.col";
    Appearance settings;
    Appearance before;
    ScriptedPrompts prompts;
    OptionsEditor editor{settings, folder.path().native() + "/", prompts};
};

TEST_F(OptionsEditorTest, StartsFromTheSettingsWithNoSchemeSelected) {
    EXPECT_EQ(editor.samples(), settings);
    EXPECT_EQ(editor.schemeNames(), (std::vector<std::string>{"xp", "Rose", "night"}));
    EXPECT_FALSE(editor.selectedScheme());
    EXPECT_EQ(editor.schemeInForce(), 0U);
    EXPECT_EQ(editor.schemeCaption(), "Colour Scheme: xp");
    EXPECT_EQ(editor.selectedColour(), settings.SchemeColours[slot::Background]);
    settings.ActiveScheme = "my.own.col";
    editor.showSchemeInForce();
    EXPECT_EQ(editor.schemeCaption(), "Colour Scheme: my");
    settings.ActiveScheme = "xp";
    EXPECT_FALSE(editor.schemeInForce()) << "no name of a record";
}

TEST_F(OptionsEditorTest, AChosenSchemeShowsWithNeutralSamplesAndChangesNoSetting) {
    editor.List1_MouseUp(1);
    const Colour background = stored("Rose.col")[slot::Background];
    EXPECT_EQ(editor.samples().SchemeColours, stored("Rose.col"));
    EXPECT_EQ(editor.schemeCaption(), "Colour Scheme: Rose");
    EXPECT_EQ(editor.selectedColour(), background);
    EXPECT_EQ(editor.samples().HexaFillColour, background);
    for (Colour colour : {editor.samples().HexaBorderColour, editor.samples().FixedNumberColour,
                          editor.samples().UserNumberColour})
        EXPECT_EQ(colour, Black);
    editor.List1_MouseUp(2);
    EXPECT_EQ(editor.samples().FixedNumberColour, White) << "black would vanish in the dark";
    EXPECT_EQ(settings, before);
    editor.open();
    EXPECT_EQ(editor.samples(), before) << "what was not applied is dropped";
}

TEST_F(OptionsEditorTest, ASchemeThatIsGoneIsReportedAndShowsNothing) {
    test::put(m_file, schemeRecord("xp.col", built(White)));
    const Appearance samples = editor.samples();
    editor.List1_MouseUp(1);
    EXPECT_EQ(prompts.shown, (std::vector<ScriptedPrompts::Message>{
                                 {"Colour Scheme: Rose.col not found", "vbok+vbcritical"}}));
    EXPECT_EQ(editor.samples().SchemeColours, samples.SchemeColours);
    EXPECT_EQ(settings, before);
}

TEST_F(OptionsEditorTest, TheContrastMakesTheSchemeAnewFromTheSelectedColour) {
    editor.setSelectedColour(Orange);
    editor.ContrastV_Change(-100);
    EXPECT_EQ(editor.samples().SchemeColours, built(Orange, -100));
    EXPECT_EQ(editor.samples().HexaFillColour, Orange);
    // Its way back to the usual contrast makes a scheme too, instead of the one that was loaded.
    editor.List1_MouseUp(1);
    EXPECT_EQ(editor.samples().SchemeColours, built(stored("Rose.col")[slot::Background]));
    editor.List1_MouseUp(1);
    EXPECT_EQ(editor.samples().SchemeColours, stored("Rose.col"));
    editor.setSelectedColour(Dark);
    editor.ShowSch();
    EXPECT_EQ(editor.samples().SchemeColours, built(Dark));
    EXPECT_EQ(settings, before);
}

TEST_F(OptionsEditorTest, ColourButtonsGiveTheirSampleTheSelectedColour) {
    editor.setSelectedColour(Orange);
    for (int index : {0, 1, 2, 3, 4, 99})
        editor.cmdcol(index);
    Appearance expected = before;
    expected.FixedNumberColour = expected.HexaFillColour = Orange;
    expected.HexaBorderColour = expected.UserNumberColour = Orange;
    EXPECT_EQ(editor.samples(), expected);
}

TEST_F(OptionsEditorTest, TheBorderGrowsToFiveAndStartsAgain) {
    settings.HexaBorderColour = settings.SchemeColours[slot::Background];
    editor.open();
    for (int width : {3, 4, 5, 1, 2}) {
        editor.widenBorder();
        EXPECT_EQ(editor.samples().HexaBorderWidth, width);
        EXPECT_EQ(editor.samples().HexaBorderColour, Black) << "it was the background's";
    }
}

TEST_F(OptionsEditorTest, ApplyTakesTheSamplesButLeavesTheSchemesColoursToTheirLoading) {
    editor.List1_MouseUp(1);
    editor.setSelectedColour(Orange);
    editor.cmdcol(OptionsEditor::UserNumber);
    editor.widenBorder();
    editor.List2_MouseUp("Courier New");
    editor.Check1_Click(true);
    editor.Check2_Click(true);
    editor.Apply("2.5");
    Appearance expected = before;
    expected.ActiveScheme = "Rose.col";
    expected.HexaFillColour = stored("Rose.col")[slot::Background];
    expected.UserNumberColour = Orange;
    expected.HexaBorderWidth = 3;
    expected.NumberFont = "Courier New";
    expected.NumBorder = expected.SplitHexas = true;
    expected.PrintLineWidth = 2;
    EXPECT_EQ(settings, expected);

    editor.open();
    editor.ContrastV_Change(50);
    editor.Apply("1");
    EXPECT_EQ(settings.ActiveScheme, "Rose.col") << "no scheme was selected";
    EXPECT_EQ(settings.SchemeColours, before.SchemeColours);
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
    prompts.lines = {"", "OCEAN", "Ocean"};
    editor.AddSch();
    EXPECT_TRUE(prompts.shown.empty());
    EXPECT_EQ(prompts.asked.front(), "Enter new Colour Scheme name");
    editor.setSelectedColour(Orange);
    editor.ShowSch();
    editor.AddSch();
    EXPECT_EQ(prompts.shown.back(),
              (ScriptedPrompts::Message{"Colour Scheme: OCEAN added", "vbok+vbinformation"}));
    EXPECT_EQ(stored("ocean.col"), built(Orange));
    EXPECT_FALSE(editor.selectedScheme()) << "the list was made anew";
    editor.AddSch();
    EXPECT_EQ(prompts.shown.back(),
              (ScriptedPrompts::Message{"Colour Scheme: Ocean already exists", "vbok+vbcritical"}));
    editor.Apply("2");
    EXPECT_EQ(settings.ActiveScheme, "xp.col");
    editor.List1_MouseUp(3);
    editor.Apply("2");
    EXPECT_EQ(settings.ActiveScheme, "ocean.col");
}

TEST_F(OptionsEditorTest, ASchemeWithoutANameIsListedButNeverChosen) {
    prompts.lines = {".col"};
    editor.AddSch();
    editor.List1_MouseUp(3);
    editor.RepSch();
    EXPECT_EQ(lastMessage(), "Select a colour scheme to replace");
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Select a colour scheme to delete");
    const std::string inForce = settings.ActiveScheme;
    editor.Apply("2");
    EXPECT_EQ(settings.ActiveScheme, inForce);
}

TEST_F(OptionsEditorTest, ReplacesAndDeletesTheSelectedSchemeAfterAQuestion) {
    const std::string untouched = test::contentOf(m_file);
    editor.RepSch();
    EXPECT_EQ(lastMessage(), "Select a colour scheme to replace");
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Select a colour scheme to delete");
    editor.List1_MouseUp(2);
    prompts.answers = {answer::No, answer::None};
    editor.RepSch();
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Delete colour scheme: night");
    EXPECT_EQ(prompts.shown.back().style, "vbYesNo+vbquestion");
    EXPECT_EQ(test::contentOf(m_file), untouched);

    prompts.answers = {answer::Yes};
    editor.setSelectedColour(Orange);
    editor.ShowSch();
    editor.RepSch();
    EXPECT_EQ(lastMessage(), "Colour Scheme: night.col replaced");
    EXPECT_EQ(stored("night.col"), built(Orange));
    EXPECT_EQ(editor.selectedScheme(), 2U);
    prompts.answers = {answer::Yes};
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Colour Scheme: night.col deleted");
    EXPECT_EQ(editor.schemeNames(), (std::vector<std::string>{"xp", "Rose"}));
    EXPECT_FALSE(editor.selectedScheme());
}

TEST_F(OptionsEditorTest, GuardsTheSchemeInForceByItsBareName) {
    editor.List1_MouseUp(0);
    settings.ActiveScheme = "XP";
    prompts.answers = {answer::Yes};
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Cannot delete currently active Colour Scheme");
    settings.ActiveScheme = "xp.col";
    prompts.answers = {answer::Yes};
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Colour Scheme: xp.col deleted");
    // A header in capitals is not the one that is looked for.
    editor.List1_MouseUp(0);
    prompts.answers = {answer::Yes};
    editor.DelSch();
    EXPECT_EQ(lastMessage(), "Colour Scheme: rose.col deleted");
    EXPECT_EQ(editor.schemeNames().front(), "Rose");
}

TEST_F(OptionsEditorTest, TheListOfAnotherInstanceDoesNotMisleadTheSelection) {
    editor.List1_MouseUp(2);
    SchemeLibrary other = library();
    ASSERT_TRUE(other.DeleteScheme("xp").ok());
    prompts.answers = {answer::Yes, answer::Ok, answer::Yes};
    editor.RepSch();
    EXPECT_EQ(editor.schemeNames()[editor.selectedScheme().value()], "night");
    ASSERT_TRUE(other.DeleteScheme("night").ok());
    editor.RepSch();
    EXPECT_FALSE(editor.selectedScheme());
}

TEST_F(OptionsEditorTest, FailuresAreToldAndLeaveEverythingAsItWas) {
    std::filesystem::remove(m_file);
    editor.List1_MouseUp(1);
    prompts.lines = {"new"};
    editor.AddSch();
    EXPECT_EQ(lastMessage().find("Error in adding Colour Scheme:\r\n"), 0U);
    prompts.answers = {answer::Yes, answer::Ok, answer::Yes};
    editor.RepSch();
    editor.DelSch();
    EXPECT_EQ(lastMessage().find("Error in updating Colour Scheme:\r\n"), 0U);
    EXPECT_EQ(prompts.shown.back().style, "vbok+vbcritical");
    EXPECT_EQ(editor.schemeNames().size(), 3U);
    EXPECT_EQ(settings, before);
}

TEST_F(OptionsEditorTest, WithoutTheSchemesTheRestCanStillBeSet) {
    std::filesystem::remove(m_file);
    editor.open();
    EXPECT_EQ(lastMessage().find(m_file.native()), 0U) << lastMessage();
    EXPECT_EQ(editor.samples(), settings);
    settings.HexaBorderWidth = 5;
    editor.cmddef();
    EXPECT_EQ(prompts.shown.size(), 2U);
    EXPECT_EQ(lastMessage().find(m_file.native()), 0U) << lastMessage();
    EXPECT_EQ(settings.HexaBorderWidth, Appearance().HexaBorderWidth);
}

TEST_F(OptionsEditorTest, APrintLineIsTheLeadingNumberRoundedToEvenAndAtLeastOne) {
    constexpr int Most = std::numeric_limits<int>::max();
    const std::vector<std::pair<const char*, int>> widths{
        {"2", 2},          {"  7 px", 7}, {"2.5", 2},    {"3.5", 4}, {"1e1", 10},
        {"+4", 4},         {"", 1},       {"text", 1},   {"0", 1},   {"-3", 1},
        {"0.5", 1},        {".", 1},      {"10^12", 10}, {"inf", 1}, {"1000000000000", Most},
        {"1e999", Most},   {"1e-999", 1}, {"-1e999", 1}, {"nan", 1}, {"2147483647", Most},
        {"99999.4", 99999}};
    for (const auto& [text, width] : widths) {
        editor.Apply(text);
        EXPECT_EQ(settings.PrintLineWidth, width) << text;
    }
}

} // namespace
} // namespace tessaly
