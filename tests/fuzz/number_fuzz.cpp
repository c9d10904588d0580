// Fuzzes the reading of typed numbers: the one reading every window uses for
// its text boxes, the quick reading of plain digits beside it, the leading
// number of a power row, and the corrections a number box and the targets box
// make to what was typed. Each input is one typed text; its first bytes also
// serve as a single and a double whose written text must read back.
//
// A finding aborts with the text that broke the rule, so that libFuzzer keeps
// the input as a crash.

#include "engine/numbers.h"
#include "settings/validate.h"
#include "skills/lists.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {
namespace {

// The text with every byte that is not printable ASCII as \xNN.
std::string Printable(std::string_view text) {
    std::string out;
    for (const char ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        if (byte >= 0x20 && byte < 0x7F && ch != '\\') {
            out.push_back(ch);
        } else {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\x%02X", byte);
            out += buf;
        }
    }
    return out;
}

[[noreturn]] void Fault(const char* rule, std::string_view text) {
    std::fprintf(stderr, "number_fuzz: %s\n  text: \"%s\"\n", rule, Printable(text).c_str());
    std::abort();
}

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

bool Same(const std::optional<double>& a, const std::optional<double>& b) {
    return a.has_value() == b.has_value() && (!a || SameBits(*a, *b));
}

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// What a typed number may look like, written apart from the reader: blanks
// around it, a sign, digits with at most one decimal point among them, and at
// least one digit.
bool WellFormed(std::string_view text) {
    text = TrimBlanks(text);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    bool digit = false;
    bool point = false;
    for (const char ch : text) {
        if (ch >= '0' && ch <= '9') {
            digit = true;
        } else if (ch == '.' && !point) {
            point = true;
        } else {
            return false;
        }
    }
    return digit;
}

// The C library's correctly rounded reading of a well-formed text: infinity
// for a number beyond any double.
double LibraryValue(std::string_view text) {
    const std::string copy(TrimBlanks(text));
    errno = 0;
    return std::strtod(copy.c_str(), nullptr);
}

// The general reading: what counts as a number, and its value.
void CheckNumericValue(std::string_view text) {
    const std::optional<double> value = NumericValue(text);
    if (!Same(value, NumericValue(text))) Fault("reading the same text twice gave two values", text);
    if (IsNumeric(text) != value.has_value()) Fault("IsNumeric disagrees with NumericValue", text);
    const double fallback = -123.25;
    if (!SameBits(NumericOr(text, fallback), value ? *value : fallback)) Fault("NumericOr disagrees", text);

    const bool wellFormed = WellFormed(text);
    if (value && !wellFormed) Fault("a text that is no number was read as one", text);
    if (value && !std::isfinite(*value)) Fault("a number was read as infinity or NaN", text);
    if (!wellFormed) return;

    const double library = LibraryValue(text);
    if (!std::isfinite(library)) {
        // Beyond any double: no box may take it for a number, or for 0.
        if (value) Fault("a number beyond any double was read as one", text);
        return;
    }
    if (!value) Fault("a well-formed number was refused", text);
    // A value too small for a normal double may be read as 0 or as the
    // denormal it is; every other value is the nearest double.
    if (std::fabs(library) < DBL_MIN) {
        if (!(std::fabs(*value) < DBL_MIN)) Fault("a value near 0 was read far from it", text);
    } else if (*value != library) {
        Fault("a number was not read as the nearest double", text);
    }

    // Blanks around the number change nothing.
    const std::string padded = "  " + std::string(text) + " ";
    if (!Same(NumericValue(padded), value)) Fault("blanks around a number changed its value", text);
}

// Plain digits, the quick reading of a skill box, and the whole number of a
// text, which uses it.
void CheckWholeNumbers(std::string_view text) {
    const std::optional<double> value = NumericValue(text);
    if (const std::optional<int> digits = PlainDigits(text)) {
        if (*digits < 0 || *digits > 9999) Fault("plain digits beyond four digits", text);
        if (!value || *value != *digits) Fault("plain digits differ from the general reading", text);
    }
    // Fallbacks no number in range can give, so that each is told apart.
    for (const int fallback : {-99999, 0, 1, 99999}) {
        const int quick = WholeNumberOf(text, fallback);
        const int general = WholeNumberOfText(text, fallback);
        if (quick != general) Fault("the quick and the general whole number differ", text);
        if (!value || *value > 32767.0 || *value < -32768.0) {
            if (general != fallback) Fault("a text that is not a 16-bit number did not give the fallback", text);
            continue;
        }
        // Half to even, within half a unit of the value.
        if (std::fabs(general - *value) > 0.5) Fault("the whole number is more than half from the value", text);
        if (std::fabs(general - *value) == 0.5 && general % 2 != 0) Fault("a half was not rounded to even", text);
    }
}

// The leading number of a power row: any text, never infinite, and for a
// number without blanks inside it the same as the general reading.
void CheckLeadingValue(std::string_view text) {
    const double leading = LeadingValue(text);
    if (!SameBits(leading, LeadingValue(text))) Fault("the leading value of one text changed", text);
    if (!std::isfinite(leading)) Fault("the leading value is infinite or NaN", text);
    const std::optional<double> value = NumericValue(text);
    if (value && TrimBlanks(text).find(' ') == std::string_view::npos && leading != *value)
        Fault("the leading value of a number differs from its value", text);
    if (!value && WellFormed(text) && leading != 0) Fault("a number beyond any double leads with a value", text);
}

// A box's correction: what it puts in the box is what it would leave there,
// since putting it there runs the box's handler again; what it leaves is in
// range.
void CheckCorrections(std::string_view text) {
    struct Limits {
        NumberBox box;
        double lowest, highest;
        bool wholePart;
    };
    static constexpr Limits kBoxes[] = {
        {NumberBox::WeaponSkill, 0, 9, true},         {NumberBox::CriticalSkill, 0, 9, true},
        {NumberBox::PowerSkill, 0, 9, true},          {NumberBox::BridgeOfficers, 0, 5, true},
        {NumberBox::EquipmentBonus, 0, 99, true},     {NumberBox::TargetDefense, -35, 100, false},
        {NumberBox::TargetResistance, 0, 999, false},
    };
    const std::optional<double> value = NumericValue(text);
    for (const Limits& l : kBoxes) {
        for (const Vessel v : {Vessel{1}, Vessel{2}}) {
            for (const bool enabled : {true, false}) {
                const std::optional<std::string> corrected = CorrectedText(l.box, v, text, enabled);
                if (corrected) {
                    if (CorrectedText(l.box, v, *corrected, enabled))
                        Fault("a box's correction is corrected again", text);
                    if (!corrected->empty() && !IsNumeric(*corrected))
                        Fault("a box was corrected to a text that is no number", text);
                    if (corrected->empty() && value) Fault("a number in a box was cleared", text);
                    continue;
                }
                if (!value) continue;
                const double tested = l.wholePart ? std::floor(*value) : *value;
                const bool criticalSwitch = l.box == NumberBox::CriticalSkill && v == 1 && tested == 47;
                if (!criticalSwitch && (tested < l.lowest || tested > l.highest))
                    Fault("a box kept a number out of its range", text);
            }
        }
    }

    const std::string targets = TargetsCorrection(text);
    if (!targets.empty() && !TargetsCorrection(targets).empty()) Fault("the targets correction is corrected", text);
    if (targets.empty() && value && (*value < 1.0 || *value > 10.0))
        Fault("the targets box kept a number out of 1 to 10", text);
}

// The texts the program writes for numbers read back to them: 7 significant
// digits for a single, 15 for a double, unless written with an exponent,
// which a typed number may not hold.
template <typename T> void CheckWrittenText(T x, double relative) {
    if (!std::isfinite(x)) return;
    for (const std::string& text : {PlainText(x), SignedText(x)}) {
        if (text.find('E') != std::string::npos) continue;
        const std::optional<double> value = NumericValue(text);
        if (!value) Fault("a written number does not read as one", text);
        const double x64 = static_cast<double>(x);
        if (std::fabs(*value - x64) > std::fabs(x64) * relative) Fault("a written number reads back wrong", text);
    }
}

} // namespace
} // namespace vantorel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantorel;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CheckNumericValue(text);
    CheckWholeNumbers(text);
    CheckLeadingValue(text);
    CheckCorrections(text);
    if (size >= sizeof(double)) {
        double d = 0;
        float f = 0;
        std::memcpy(&d, data, sizeof d);
        std::memcpy(&f, data, sizeof f);
        // Half a unit in the last written digit, and a hair for the reading.
        CheckWrittenText(f, 5.0000001e-7);
        CheckWrittenText(d, 5.0000001e-15);
    }
    return 0;
}
