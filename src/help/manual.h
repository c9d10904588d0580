#pragma once

// The program's built-in manual and the texts of the About window.
//
// The manual is a table of tagged paragraphs. The documentation box shows them
// joined by one line break each, and the help buttons address the text by
// character position, so positions are counted on exactly that joined text.
// Every text here is plain ASCII, so that a position counts the same here and
// in any text box that shows it.

#include <span>
#include <string>
#include <string_view>

namespace vantorel {

// How a paragraph is shown: the title at 24 points, the author line below it,
// section headings at 14 points (the four window sections also underlined),
// sub-headings at 12 points bold, body text and bullet items at 12 points.
enum class ManualStyle { Title, Author, Heading, WindowHeading, Subheading, Body, Bullet };

struct ManualParagraph {
    ManualStyle style;
    std::string_view text; // never empty, no line break
};

// How a style is set, in the manual's one serif face: size, weight, line,
// and the space around the paragraph in twips. Bullet items are indented
// by the list they form.
struct ManualFormat {
    double points = 12.0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool centred = false;
    int spaceBefore = 0;
    int spaceAfter = 0;
};
ManualFormat FormatOf(ManualStyle style);
// Whether paragraphs of the style begin a section: the title and the
// headings, not the sub-headings.
bool StartsSection(ManualStyle style);

// The whole manual in reading order.
std::span<const ManualParagraph> ManualParagraphs();

// The plain text of the documentation box: the paragraphs joined by one '\n'
// each, with no break after the last.
const std::string& ManualText();

// The places that the help buttons open.
enum class ManualSection {
    Start,
    MainWindow,
    ActivatedSkills,
    GraphWindow,
    AdvancedSettings,
    CharacterSettings,
    CombatSettings,
    PowerSettings,
    WeaponSettings
};

// Character position in ManualText() where the section's heading begins
// (0 for Start, and for a value outside the enumeration).
int SectionStart(ManualSection section);
// Where the heading of the section that holds `position` begins: the last
// title or heading at or before it (positions outside the text are taken to
// its nearer end).
int SectionHeadingAt(int position);
// Where the section that holds `position` ends: the end of its last
// paragraph, just before the line break of the next heading, or the end of
// the text.
int SectionEndAt(int position);

// The author line of the About window, the same as the manual's.
std::string_view AboutAuthorLine();
// The licence text of the About window: short paragraphs separated by "\n\n".
std::string_view AboutLicence();
// The support forum page that About's "View Forum Post" opens.
std::string_view ForumAddress();

} // namespace vantorel
