// Compares the parsers and validators with their plain versions, for many random texts.
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "platform/Error.h"
#include "values/FrameTranscription.h"
#include "values/QuantityParsers.h"
#include "values/RecordingMessages.h"

namespace tw::test {
namespace {

constexpr int kTexts = 60000;

// Creates texts of one to seven pieces, weighted so that enough of them are accepted by some parser.
class TextMaker {
  public:
    std::string Next() {
        std::string text;
        if (Chance(4)) text += Piece(kOdd);
        text += Chance(12) ? Piece(kOdd) : Number();
        const int pieces = static_cast<int>(random_() % 5);
        for (int i = 0; i < pieces; ++i) {
            if (!Chance(3)) text += Piece(kGaps);
            if (Chance(4))
                text += Piece(kOdd);
            else
                text += Chance(3) ? Number() : Unit();
        }
        if (Chance(20))
            text.insert(random_() % (text.size() + 1),
                        std::string(1, static_cast<char>(random_() % 255 + 1)));
        return text;
    }

  private:
    std::mt19937 random_{20240229};

    bool Chance(unsigned oneIn) { return random_() % oneIn == 0; }

    template <std::size_t N>
    std::string Piece(const std::array<const char*, N>& pieces) {
        return pieces[random_() % N];
    }

    std::string Number() {
        if (Chance(200)) return std::string(330, '9');
        if (Chance(3)) return Piece(kNumbers);
        std::string number = std::to_string(random_() % 400);
        if (Chance(2)) number.append(".").append(std::to_string(random_() % 1000));
        return number;
    }

    std::string Unit() {
        std::string unit = Piece(kUnits);
        if (Chance(2)) {
            for (char& c : unit) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
        return unit;
    }

    static constexpr std::array<const char*, 22> kNumbers{"1/2",   "3/4",
                                                          "1/0",   "0",
                                                          "-1",    "-2 1/2",
                                                          "2 1/2", "5.",
                                                          ".5",    "-.5",
                                                          "1.050", "1/2.5",
                                                          "1/2/3", "-",
                                                          ".",     "1.2.3",
                                                          "1:30",  "1:30:15",
                                                          "1,000", "1-2",
                                                          "/2",    "0.000000000000000012345"};
    static constexpr std::array<const char*, 7> kGaps{" ", " ", " ", "  ", "", "\t", "\r\n"};
    static constexpr std::array<const char*, 19> kOdd{
        "~",   "~ ",   "(",  "(about)", ")", ":", ":30", ": 5", "\u00B0", " \u00B0 ",
        "deg", "DEG.", "FL", "fl.",     " ", ".", "/",   "%",   "\u017F"};
    static constexpr std::array<const char*, 62> kUnits{
        "SG",      "P",        "P.",   "PL.",       "PLATO",  "G",      "GAL",     "GAL.",
        "GALLONS", "GALLONSS", "Q",    "QT.",       "PT",     "PINTS",  "C",       "C.",
        "CUPS",    "O",        "OZ",   "OZ.",       "OUNCES", "FL OZ",  "FL. OZ.", "FLUID OUNCES",
        "TBSP",    "TBSP.",    "TSP",  "TEASPOONS", "L",      "LITERS", "ML",      "MILLILITERS",
        "LB",      "LB.",      "LBS",  "POUNDS",    "GRAM",   "KG",     "K",       "KILOS.",
        "%",       "AAU",      "AUS.", "IBU",       "BUS.",   "CO2",    "VOL",     "VOLS. CO2",
        "M",       "MIN.",     "H",    "HRS",       "S",      "SEC.",   "F",       "FAHRENHEIT",
        "CELSIUS", "PSI",      "KPA",  "PA.",       "ATM",    "DEG F"};
};

const std::vector<std::string> kParserNames{
    "ParseSG",          "ParsePlato",       "ParseGallons",     "ParseQuarts",     "ParsePints",
    "ParseCups",        "ParseFluidOunces", "ParseTablespoons", "ParseTeaspoons",  "ParseLiters",
    "ParseMilliliters", "ParsePounds",      "ParseOunces",      "ParseGrams",      "ParseKilograms",
    "ParsePercent",     "ParseAAU",         "ParseIBU",         "ParseCO2Volumes", "ParseMinutes",
    "ParseHours",       "ParseSeconds",     "ParseFahrenheit",  "ParseCelsius",    "ParseKelvin",
    "ParsePSI",         "ParseKPa",         "ParsePa",          "ParseAtm"};

const std::vector<std::string> kValidatorNames{"ValidateVolume",  "ValidateGravity",     "ValidatePercent",
                                               "ValidatePounds",  "ValidateGrams",       "ValidateOunces",
                                               "ValidateMinutes", "ValidateTemperature", "ValidatePressure"};

constexpr double kUntouched = -12345.5;

template <typename Call>
Outcome Observe(Call call) {
    double value = kUntouched;
    RecordingMessages messages;
    Outcome outcome;
    try {
        outcome.kind = call(value, messages) ? 'y' : 'n';
    } catch (const Error& error) {
        outcome.kind = error.Number() == kDivisionByZeroNumber ? 'd' : 'o';
    }
    if (outcome.kind == 'y')
        outcome.value = value;
    else
        EXPECT_EQ(value, kUntouched);
    for (const std::string& shown : messages.shown) outcome.message += shown;
    return outcome;
}

std::string Describe(const std::string& name, const std::string& text) {
    return name + " of [" + text + "]";
}

TEST(Parsers, AgreeWithTheirPlainTranscription) {
    TextMaker maker;
    int accepted = 0;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = maker.Next();
        for (const std::string& name : kParserNames) {
            const Parser parser = FindParser(name);
            const Outcome outcome = Observe([&](double& value, MessagePort&) {
                const std::optional<double> read = parser(text);
                value = read.value_or(value);
                return read.has_value();
            });
            ASSERT_EQ(outcome, PlainParse(name, text)) << Describe(name, text);
            accepted += outcome.kind == 'y';
        }
    }
    EXPECT_GT(accepted, kTexts / 2) << "the texts no longer test acceptance";
}

TEST(Validators, AgreeWithTheirPlainTranscription) {
    TextMaker maker;
    std::array<int, 256> seen{};
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = maker.Next();
        for (const std::string& name : kValidatorNames) {
            const Validator validator = FindValidator(name);
            const Outcome outcome = Observe([&](double& value, MessagePort& messages) {
                const Reading<double> read = validator(text);
                if (!read) ShowRefusal(messages, read.Why());
                value = read.ValueOr(value);
                return read.Accepted();
            });
            ASSERT_EQ(outcome, PlainValidate(name, text)) << Describe(name, text);
            ++seen[static_cast<unsigned char>(outcome.kind)];
        }
    }
    for (const char kind : {'y', 'n', 'd', 'o'})
        EXPECT_GT(seen[static_cast<unsigned char>(kind)], 100) << kind;
}

TEST(GetToken, AgreesWithItsPlainTranscription) {
    TextMaker maker;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = maker.Next();
        std::string_view rest = text;
        std::string plainRest = text;
        for (int token = 0; token < 4; ++token) {
            const std::string_view cut = GetToken(rest);
            ASSERT_EQ(cut, PlainGetToken(plainRest)) << "[" << text << "]";
            ASSERT_EQ(rest, plainRest) << "[" << text << "]";
        }
    }
}

}  // namespace
}  // namespace tw::test
