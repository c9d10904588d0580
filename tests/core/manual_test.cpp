#include "help/manual.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

using Headings = std::vector<std::pair<ManualStyle, std::string_view>>;

bool IsPrintableAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// The paragraphs of one section: from its heading up to the next heading.
std::vector<ManualParagraph> SectionOf(std::string_view heading) {
    std::vector<ManualParagraph> section;
    bool inside = false;
    for (const ManualParagraph& p : ManualParagraphs()) {
        const bool isHeading = p.style == ManualStyle::Heading || p.style == ManualStyle::WindowHeading;
        if (isHeading && inside) break;
        if (isHeading && p.text == heading) inside = true;
        if (inside) section.push_back(p);
    }
    return section;
}

TEST(Manual, FollowsTheOutline) {
    using enum ManualStyle;
    const Headings outline = {
        {Title, "Vantorel v 4.0"},        {Heading, "Features"},
        {Heading, "Introduction"},        {Heading, "How Does It Work?"},
        {Heading, "How Accurate Is It?"}, {Heading, "Basic Mode: Understanding Relative DPS"},
        {Heading, "Known Limitations"},   {Heading, "Using the Vantorel"},
        {WindowHeading, "Main Window"},   {WindowHeading, "Activated Skills Window"},
        {WindowHeading, "Graph Window"},  {WindowHeading, "Advanced Settings Window"},
        {Heading, "Character Settings"},  {Heading, "Combat Settings"},
        {Heading, "Power Settings"},      {Heading, "Weapon Settings"},
    };
    Headings found;
    for (const ManualParagraph& p : ManualParagraphs())
        if (p.style == Title || p.style == Heading || p.style == WindowHeading) found.emplace_back(p.style, p.text);
    EXPECT_EQ(found, outline);

    const auto paragraphs = ManualParagraphs();
    ASSERT_GE(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[1].style, Author);
    EXPECT_EQ(paragraphs[1].text, AboutAuthorLine());

    // The sub-headings of the window sections, in order and nothing else.
    const std::vector<std::pair<std::string_view, std::vector<std::string_view>>> windows = {
        {"Main Window",
         {"Ship Class/Ship Tier/Ship Sub-Class", "Forward Weapons/Rear Weapons", "Reset", "Firing Arc Display",
          "Simplified Firing Arcs", "Weapon Power", "Target Distance", "Activated Skill", "Advanced Settings",
          "Show Graph/Hide Graph", "Compare", "About"}},
        {"Activated Skills Window",
         {"Overview", "Activate Skill Checkbox", "Skill Selection", "Rank Selection", "Number Of Targets",
          "Same As Alpha (Omega Vessel)", "Attack Pattern Beta/Delta"}},
        {"Graph Window", {"Overview", "Graph Mode", "Hide/Show Key"}},
        {"Advanced Settings Window", {"Overview", "Same As Alpha (Omega Vessel)", "Copy From Alpha/Omega"}},
    };
    for (const auto& [window, expected] : windows) {
        std::vector<std::string_view> subheadings;
        for (const ManualParagraph& p : SectionOf(window))
            if (p.style == Subheading) subheadings.push_back(p.text);
        EXPECT_EQ(subheadings, expected) << window;
    }
}

TEST(Manual, EveryHelpButtonLandsOnItsHeading) {
    const struct Case {
        ManualSection section;
        std::string_view heading;
    } cases[] = {
        {ManualSection::Start, "Vantorel v 4.0"},
        {ManualSection::MainWindow, "Main Window"},
        {ManualSection::ActivatedSkills, "Activated Skills Window"},
        {ManualSection::GraphWindow, "Graph Window"},
        {ManualSection::AdvancedSettings, "Advanced Settings Window"},
        {ManualSection::CharacterSettings, "Character Settings"},
        {ManualSection::CombatSettings, "Combat Settings"},
        {ManualSection::PowerSettings, "Power Settings"},
        {ManualSection::WeaponSettings, "Weapon Settings"},
    };
    const std::string& text = ManualText();
    int previous = -1;
    for (const Case& c : cases) {
        const int start = SectionStart(c.section);
        ASSERT_GE(start, 0) << c.heading;
        ASSERT_LT(static_cast<std::size_t>(start), text.size()) << c.heading;
        // The whole line at that position is the heading.
        const std::size_t end = text.find('\n', start);
        EXPECT_EQ(text.substr(start, end - start), c.heading);
        EXPECT_TRUE(start == 0 || text[start - 1] == '\n') << c.heading;
        EXPECT_GT(start, previous) << c.heading << " comes after the section before it";
        previous = start;
    }
    EXPECT_EQ(SectionStart(static_cast<ManualSection>(99)), 0);
}

TEST(Manual, IsPlainTextOfTheRightLength) {
    std::string joined;
    for (const ManualParagraph& p : ManualParagraphs()) {
        EXPECT_FALSE(p.text.empty());
        EXPECT_TRUE(IsPrintableAscii(p.text)) << p.text;
        EXPECT_TRUE(p.text.front() != ' ' && p.text.back() != ' ') << '"' << p.text << '"';
        joined += joined.empty() ? "" : "\n";
        joined += p.text;
    }
    EXPECT_EQ(joined, ManualText());
    EXPECT_GE(ManualText().size(), 33000u);
    EXPECT_LE(ManualText().size(), 41000u);
}

TEST(Manual, AboutTexts) {
    EXPECT_TRUE(!AboutAuthorLine().empty() && IsPrintableAscii(AboutAuthorLine()));
    EXPECT_TRUE(ForumAddress().starts_with("https://") && IsPrintableAscii(ForumAddress()));

    // Paragraphs separated by blank lines, each of them plain text.
    const std::string_view licence = AboutLicence();
    EXPECT_GE(licence.size(), 600u);
    EXPECT_LE(licence.size(), 1200u);
    std::size_t paragraphs = 0;
    for (std::size_t from = 0; from <= licence.size(); ++paragraphs) {
        const std::size_t to = std::min(licence.find("\n\n", from), licence.size());
        const std::string_view paragraph = licence.substr(from, to - from);
        EXPECT_FALSE(paragraph.empty());
        EXPECT_TRUE(IsPrintableAscii(paragraph)) << paragraph;
        from = to + 2;
    }
    EXPECT_GE(paragraphs, 2u);
}

} // namespace
} // namespace vantorel
