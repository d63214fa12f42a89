#include <gtest/gtest.h>

#include "platform/Error.h"
#include "values/QuantityParsers.h"

namespace tw {
namespace {

struct Good {
    std::string_view parser;
    std::string_view text;
    double value;
};

void ExpectAccepted(const Good& good) {
    const Parser parser = FindParser(good.parser);
    ASSERT_NE(parser, nullptr) << good.parser;
    const std::optional<double> value = parser(good.text);
    ASSERT_TRUE(value) << good.parser << " [" << good.text << "]";
    EXPECT_DOUBLE_EQ(*value, good.value) << good.parser << " [" << good.text << "]";
}

void ExpectRefused(std::string_view name, std::string_view text) {
    const Parser parser = FindParser(name);
    ASSERT_NE(parser, nullptr) << name;
    EXPECT_FALSE(parser(text)) << name << " [" << text << "]";
}

struct UnitCase {
    std::string_view parser;
    bool bareNumber;
    bool realOnly;
    std::vector<std::string_view> words;
};

const std::vector<UnitCase> kUnits{
    {"ParseSG", true, false, {"SG"}},
    {"ParsePlato", false, false, {"P", "P.", "PL", "PL.", "PLATO"}},
    {"ParseGallons", true, false, {"G", "G.", "GAL", "GAL.", "GALS", "GALS.", "GALLON", "GALLONS"}},
    {"ParseQuarts", false, false, {"Q", "Q.", "QT", "QT.", "QTS", "QTS.", "QUART", "QUARTS"}},
    {"ParsePints", false, false, {"P", "P.", "PT", "PT.", "PTS", "PTS.", "PINT", "PINTS"}},
    {"ParseCups", false, false, {"C", "C.", "CUP", "CUPS"}},
    {"ParseFluidOunces", false, false, {"O", "O.", "OZ", "OZ.", "OUNCE", "OUNCES"}},
    {"ParseTablespoons", false, false, {"TBSP", "TBSP.", "TBSPS", "TBSPS.", "TABLESPOON", "TABLESPOONS"}},
    {"ParseTeaspoons", false, false, {"TSP", "TSP.", "TSPS", "TSPS.", "TEASPOON", "TEASPOONS"}},
    {"ParseLiters", false, false, {"L", "L.", "LITER", "LITERS"}},
    {"ParseMilliliters", false, false, {"ML", "ML.", "MILLILITER", "MILLILITERS"}},
    {"ParsePounds", true, false, {"LB", "LB.", "LBS", "LBS.", "POUND", "POUNDS"}},
    {"ParseOunces", true, false, {"O", "O.", "OZ", "OZ.", "OUNCE", "OUNCES"}},
    {"ParseGrams", true, false, {"G", "G.", "GRAM", "GRAMS"}},
    {"ParseKilograms",
     false,
     false,
     {"KG", "KG.", "KILOGRAM", "KILOGRAMS", "K", "K.", "KILO", "KILO.", "KILOS", "KILOS."}},
    {"ParsePercent", true, true, {"%"}},
    {"ParseAAU",
     false,
     false,
     {"AU", "AU.", "AUS", "AUS.", "AA", "AA.", "AAS", "AAS.", "AAU", "AAU.", "AAUS", "AAUS."}},
    {"ParseIBU", true, false, {"IBU", "IBU.", "IBUS", "IBUS.", "BU", "BU.", "BUS", "BUS."}},
    {"ParseCO2Volumes",
     true,
     false,
     {"CO2", "VOL", "VOLS", "VOL.", "VOLS.", "VOL CO2", "VOL.CO2", "VOL. CO2", "VOLS CO2", "VOLS.CO2",
      "VOLS. CO2"}},
    {"ParseMinutes",
     true,
     false,
     {"M", "M.", "MIN", "MIN.", "MS", "MS.", "MINS", "MINS.", "MINUTE", "MINUTES"}},
    {"ParseHours", false, false, {"H", "H.", "HR", "HR.", "HRS", "HRS.", "HS", "HS.", "HOUR", "HOURS"}},
    {"ParseSeconds", false, true, {"S", "S.", "SEC", "SEC.", "SECS", "SECS.", "SECOND", "SECONDS"}},
    {"ParseFahrenheit", true, false, {"F", "F.", "FAHRENHEIT"}},
    {"ParseCelsius", false, false, {"C", "C.", "CELSIUS", "CENTIGRADE"}},
    {"ParseKelvin", false, false, {"K", "K.", "KELVIN", "KELVINS"}},
    {"ParsePSI", true, true, {"PSI", "PSI."}},
    {"ParseKPa", false, true, {"KPA", "KPA.", "KPAS", "KPAS.", "KILOPASCAL", "KILOPASCALS"}},
    {"ParsePa", false, true, {"PA", "PA.", "PAS", "PAS.", "PASCAL", "PASCALS"}},
    {"ParseAtm", false, true, {"ATM", "ATM.", "ATMS", "ATMS.", "ATMOSPHERE", "ATMOSPHERES"}},
};

TEST(UnitParsers, AcceptEachOfTheirWordsInAnyCase) {
    for (const UnitCase& unit : kUnits) {
        for (const std::string_view word : unit.words) {
            std::string lower(word);
            for (char& c : lower) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
            ExpectAccepted({unit.parser, "2.5 " + std::string(word), 2.5});
            ExpectAccepted({unit.parser, "  2.5" + lower + "  ", 2.5});
            ExpectAccepted({unit.parser, "~2.5  " + lower + " (or so)", 2.5});
        }
    }
}

TEST(UnitParsers, RefuseAWordThatIsNotTheirs) {
    for (const UnitCase& unit : kUnits) {
        for (const UnitCase& other : kUnits) {
            for (const std::string_view word : other.words) {
                bool own = false;
                for (const std::string_view mine : unit.words) own = own || mine == word;
                if (!own) ExpectRefused(unit.parser, "2 " + std::string(word));
            }
        }
        const std::string word(unit.words.front());
        for (const std::string& bad :
             {"2 " + word + " extra", "2 " + word + "X", "2 X" + word, "2 " + word + word, word, word + " 2",
              "X " + word, "2\t" + word, "2 " + word + "\t", "2 " + word + "\r\n", "1,000 " + word,
              "1-2 " + word, "(2 " + word + ")", std::string(), std::string("  "), std::string("- ") + word,
              ". " + word})
            ExpectRefused(unit.parser, bad);
    }
}

TEST(UnitParsers, AcceptABareNumberWhereItHasAMeaning) {
    for (const UnitCase& unit : kUnits) {
        if (unit.bareNumber)
            ExpectAccepted({unit.parser, " 2.5 ", 2.5});
        else
            ExpectRefused(unit.parser, " 2.5 ");
    }
}

TEST(UnitParsers, ReadFractionsUnlessRealOnly) {
    for (const UnitCase& unit : kUnits) {
        const std::string word(unit.words.front());
        for (const std::string& text : {"2 1/2 " + word, "5/2" + word, "2 ~1/2 " + word}) {
            if (unit.realOnly)
                ExpectRefused(unit.parser, text);
            else
                ExpectAccepted({unit.parser, text, 2.5});
        }
        ExpectRefused(unit.parser, "1/2.5 " + word);
        ExpectRefused(unit.parser, "2.5 1/2 " + word);
    }
}

TEST(UnitParsers, RaiseForAZeroDenominatorUnlessRealOnly) {
    for (const UnitCase& unit : kUnits) {
        const Parser parser = FindParser(unit.parser);
        for (const std::string& text :
             {"1/0 " + std::string(unit.words.front()), std::string("5 1/0 nonsense")}) {
            if (unit.realOnly)
                EXPECT_FALSE(parser(text)) << unit.parser;
            else
                EXPECT_THROW(parser(text), Error) << unit.parser;
        }
    }
}

TEST(UnitParsers, RaiseForDigitsBeyondTheRangeOfADouble) {
    const std::string digits(400, '9');
    for (const UnitCase& unit : kUnits) {
        try {
            FindParser(unit.parser)(digits);
            ADD_FAILURE() << unit.parser;
        } catch (const Error& error) {
            EXPECT_EQ(error.WithNumber(), "Overflow (6)");
        }
    }
}

TEST(UnitParsers, ReadTextsLongerThanAnyBuffer) {
    const std::string blanks(500, ' ');
    ExpectAccepted({"ParseGallons", blanks + "5" + blanks + "gal" + blanks, 5});
    ExpectAccepted({"ParseGallons", "5 gal (" + std::string(500, 'x'), 5});
    ExpectAccepted({"ParseGallons", "5." + std::string(500, '0') + " GAL", 5});
    ExpectRefused("ParseGallons", "5 gal" + std::string(500, 'l'));
}

TEST(UnitParsers, ReadTextsBeyondAsciiAndBrokenOnes) {
    ExpectAccepted({"ParseSeconds", "90 \u017F", 90});  // a long s becomes S in upper case
    ExpectRefused("ParseGallons", "5 gal\xFF");
    ExpectRefused("ParseGallons", "\xC3");
    ExpectAccepted({"ParseGallons", "5 gal (\xFF\xFE)", 5});
    ExpectRefused("ParseGallons", std::string_view("5\0gal", 5));
}

struct TextValue {
    std::string_view text;
    double value;
};

TEST(DegreeWord, MayStandBeforeTheScale) {
    for (const std::string_view degree : {"\u00B0", "deg", "deg.", "degree", "degrees", "DEG"}) {
        const std::string text = "12 " + std::string(degree);
        ExpectAccepted({"ParsePlato", text + " P", 12});
        ExpectAccepted({"ParseCelsius", text + " C.", 12});
        ExpectAccepted({"ParseFahrenheit", text + " f", 12});
        ExpectAccepted({"ParseFahrenheit", text, 12});
        ExpectRefused("ParsePlato", text);
        ExpectRefused("ParseCelsius", text);
        ExpectRefused("ParseKelvin", text + " K");
        ExpectRefused("ParseSG", text + " SG");
        ExpectRefused("ParsePlato", text + " " + std::string(degree) + " P");
    }
    ExpectAccepted({"ParsePlato", "12 DEG.PLATO", 12});
    ExpectAccepted({"ParsePlato", "12DEG P", 12});
}

TEST(DegreeWord, IsPutBackWhenItIsNone) {
    ExpectAccepted({"ParsePlato", "12 P", 12});
    ExpectRefused("ParsePlato", "12\u00B0P");
    ExpectRefused("ParsePlato", "12 \u00B0P");
    ExpectRefused("ParsePlato", "12 P DEG");
    ExpectRefused("ParsePlato", "12 P L");
    ExpectRefused("ParseFahrenheit", "12 F.F");
    ExpectRefused("ParseFahrenheit", "12 \tF");
}

// Reading the word drops a "~" before it, and putting the word back does not restore it.
TEST(DegreeWord, LosesATildeWhenItIsPutBack) {
    ExpectAccepted({"ParsePlato", "12 ~P", 12});
    ExpectAccepted({"ParseFahrenheit", "12 ~", 12});
    ExpectRefused("ParseKelvin", "12 ~K");
    ExpectRefused("ParseFahrenheit", "12 ~F ~");
    ExpectRefused("ParseFahrenheit", "12 DEG ~F");
}

TEST(FluidWord, MayStandBeforeTheOunces) {
    for (const std::string_view text :
         {"6 fl oz", "6 FL. OZ.", "6 fl.oz", "6 fluid ounces", "6 oz", "6 ~oz", "6 ~fl oz"})
        ExpectAccepted({"ParseFluidOunces", text, 6});
    for (const std::string_view text :
         {"6", "6 fl", "6 floz", "6 fl fl oz", "6 oz fl", "6 fl ~oz", "6 fluid. oz"})
        ExpectRefused("ParseFluidOunces", text);
    ExpectRefused("ParseOunces", "6 fl oz");
}

TEST(ParsePounds, AddsAnOuncesPart) {
    for (const std::string_view text :
         {"2 lb 3 oz", "2 lb 3", "2lb 3oz", "2 LB.3 OZ.", "2 pounds 3 ounces", "2 lb ~3 oz", "2 ~lb 3"}) {
        ExpectAccepted({"ParsePounds", text, 2.1875});
    }
    ExpectAccepted({"ParsePounds", "1 1/2 lb 1 1/2 oz", 1.59375});
    ExpectAccepted({"ParsePounds", "2 lb -3 oz", 1.8125});
    for (const std::string_view text :
         {"2lb3oz", "2 oz", "2 3 oz", "2 lb 3 lb", "2 lb oz", "2 lb 3 oz 1", "2 lb 3 g", "2 ~", "2 lb x"})
        ExpectRefused("ParsePounds", text);
}

TEST(ParseMinutes, AddsSecondsBehindAColon) {
    for (const TextValue& good : std::vector<TextValue>{{"1:30", 1.5},
                                                        {"1:30 min", 1.5},
                                                        {"1 :30", 1.5},
                                                        {"1:~30", 1.5},
                                                        {"1 1/2:30", 2},
                                                        {"1:7 1/2", 1.125},
                                                        {"0:90", 1.5},
                                                        {"1.5:30", 2},
                                                        {"-1:30", -0.5}})
        ExpectAccepted({"ParseMinutes", good.text, good.value});
    for (const std::string_view text : {"1:", "1: 30", ":30", "1:30:15", "1:x", "1:30 h", "1:30 60", "1::30"})
        ExpectRefused("ParseMinutes", text);
}

TEST(ParseHours, AddsMinutesAndSecondsBehindColons) {
    for (const TextValue& good : std::vector<TextValue>{{"1 h", 1},
                                                        {"1:30 H", 1.5},
                                                        {"1:30:36 hr", 1.51},
                                                        {"1:30:36hrs.", 1.51},
                                                        {"1/2 hour", 0.5},
                                                        {"1:0:0 h", 1}})
        ExpectAccepted({"ParseHours", good.text, good.value});
    for (const std::string_view text :
         {"1", "1:30", "1:30:15", "1:30:15:10 h", "1: h", "1:30: h", "1:30 min"})
        ExpectRefused("ParseHours", text);
}

TEST(ParseCO2Volumes, ComparesTheWholeRest) {
    ExpectRefused("ParseCO2Volumes", "2 VOL  CO2");
}

TEST(ParseOuncesAnyUnit, ReadsEveryWeightWithoutARange) {
    for (const TextValue& good : std::vector<TextValue>{{"2", 2},
                                                        {"2 oz", 2},
                                                        {"1 lb 2 oz", 18},
                                                        {"28.35 g", 1},
                                                        {"1 kg", 35.274},
                                                        {"-2 oz", -2},
                                                        {"0", 0},
                                                        {"", 0},
                                                        {"  ", 0}})
        ExpectAccepted({"ParseOuncesAnyUnit", good.text, good.value});
    for (const std::string_view text : {"\t", "5 AAU", "5 gal", "A5"})
        ExpectRefused("ParseOuncesAnyUnit", text);
}

TEST(FindParser, KnowsOnlyExactNames) {
    EXPECT_EQ(FindParser("ParseGallons"), &ParseGallons);
    EXPECT_EQ(FindParser("ParseReal"), &ParseReal);
    EXPECT_EQ(FindParser("parsegallons"), nullptr);
    EXPECT_EQ(FindParser(""), nullptr);
    EXPECT_EQ(FindValidator("ValidateVolume"), &ValidateVolume);
    EXPECT_EQ(FindValidator("ValidateVolumes"), nullptr);
}

}  // namespace
}  // namespace tw
