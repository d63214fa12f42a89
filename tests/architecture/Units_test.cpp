// The rule of units: in the folders that compute, every number of a public declaration says its unit.
#include <gtest/gtest.h>
#include <map>

#include "architecture/Declarations.h"
#include "architecture/SourceReader.h"
#include "architecture/UnitRule.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFolders[] = {"src/calc", "src/values", "src/water", "src/tools"};

// The headers below the folders, by their paths from the root of the checkout.
std::map<std::string, std::string> Headers() {
    const fs::path root = TUNWRIGHT_SOURCES;
    std::map<std::string, std::string> headers;
    for (const std::string_view folder : kFolders)
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root / folder))
            if (entry.path().extension() == ".h")
                headers[fs::relative(entry.path(), root).generic_string()] = ReadSource(entry.path());
    return headers;
}

TEST(Units, EveryNumberOfAPublicDeclarationSaysItsUnit) {
    const std::map<std::string, std::string> headers = Headers();
    NumberTypes types;
    for (const auto& [path, header] : headers) types.merge(NumberTypesIn(header));
    for (const auto& [path, header] : headers)
        for (const NumberWithoutUnit& found : NumbersWithoutUnit(header, types))
            ADD_FAILURE() << path << ':' << found.line << ": " << found.declaration << " [" << found.number
                          << "]: " << kUnitRule;
}

TEST(Units, AreAskedOfEveryFolder) {
    const std::map<std::string, std::string> headers = Headers();
    for (const char* path : {"src/calc/Hops.h", "src/values/Converter.h", "src/water/LPsimplex.h",
                             "src/tools/UnitConverter.h", "src/tools/ui/ColorScaleView.h"})
        EXPECT_TRUE(headers.contains(path)) << path;
    EXPECT_TRUE(NumberTypesIn(headers.at("src/calc/Ions.h")).contains("Ions"));
}

// "line: number" of every offence.
std::string Offences(std::string_view header) {
    std::string text;
    for (const NumberWithoutUnit& found : NumbersWithoutUnit(header, NumberTypesIn(header)))
        text += std::to_string(found.line) + ": " + found.number + "\n";
    return text;
}

TEST(UnitRule, FindsWhatSaysNoUnit) {
    EXPECT_EQ(Offences("double Weight();"), "1: result\n");
    EXPECT_EQ(Offences("\nvoid F(int a, double weight, float);"), "2: weight\n2: parameter without a name\n");
    EXPECT_EQ(Offences("double Weight(double time);"), "1: result\n1: time\n");
    EXPECT_EQ(Offences("inline constexpr double kMost = 3;"), "1: kMost\n");
    EXPECT_EQ(Offences("std::optional<double> Read(std::string_view text);"), "1: result\n");
    EXPECT_EQ(Offences("Reading<double> Read(std::span<const double> weights, std::vector<double>& out);"),
              "1: result\n1: weights\n1: out\n");
    EXPECT_EQ(Offences("struct A {\n  double hue, tint = 3;\n  double room[3]; };"),
              "2: hue\n2: tint\n3: room\n");
    EXPECT_EQ(Offences("class A { public: explicit A(double b) : b_{b} {} double B() const { return b_; }\n"
                       "template <int n = 3> void C(double d = 0); };"),
              "1: b\n1: result\n2: d\n");
    EXPECT_EQ(Offences("using Reader = std::optional<double> (*)(std::string_view);"), "1: Reader\n");
}

TEST(UnitRule, KnowsAliasesOfNumbers) {
    EXPECT_EQ(Offences("using Masses = std::array<double, 6>;\nvoid F(const Masses& masses);"),
              "1: Masses\n2: masses\n");
    EXPECT_EQ(Offences("using Reader = double (*)();  // psi\nReader Find(int name);"), "");
}

TEST(UnitRule, AsksOnlyWhatIsPublicAndNumbers) {
    EXPECT_EQ(Offences("class A { double b_; public: int c; protected: double d(); private: struct E { "
                       "double f; }; double g_; };"),
              "");
    EXPECT_EQ(Offences("int Weight(bool b); enum class C { D = int(1.5), E }; class F; struct G;"
                       "friend double H(); template <class T> T I(T t) { double j = 3; return t; }"),
              "");
    EXPECT_EQ(Offences("class A { public: int B() { double c; return 3; } private: double d_; };"), "");
}

TEST(UnitRule, AcceptsUnitsInNames) {
    EXPECT_EQ(Offences("double TotalGallons(); double HCUToSRM(double hcu); double ToSG(double plato);"), "");
    EXPECT_EQ(Offences("struct A { double alphaAcidOunces; double attenuation_percent; };"), "");
    EXPECT_EQ(Offences("inline constexpr double kPsiPerAtmosphere = 14.7;"), "");
    EXPECT_EQ(Offences("void F(const std::optional<double>& boilSG, double kPa);"), "");
}

TEST(UnitRule, ANameSpeaksForItselfAlone) {
    EXPECT_EQ(Offences("double TotalGallons(double sugar);"), "1: sugar\n");
    EXPECT_EQ(Offences("double Sugar(double gallons);"), "1: result\n");
    EXPECT_EQ(Offences("struct A { double gallons, sugar; };"), "1: sugar\n");
}

TEST(UnitRule, WordsCountAsAWhole) {
    EXPECT_EQ(Offences("double Programs(double gramsy);"), "1: result\n1: gramsy\n");
    EXPECT_EQ(Offences("double totalVolume;  // of the volume"), "1: totalVolume\n");
    EXPECT_EQ(Offences("// Written with a fraction.\ndouble Share();\ndouble Part();"), "3: result\n");
}

TEST(UnitRule, AcceptsUnitsInComments) {
    EXPECT_EQ(Offences("// In US\n// gallons.\ndouble A(double b,\n         double c);"), "");
    EXPECT_EQ(Offences("double a;  // degrees Plato"), "");
    EXPECT_EQ(Offences("double A(double b);  // specific gravity from IBUs"), "");
    EXPECT_EQ(Offences("double A(\n    int b);  // °F"), "");
    EXPECT_EQ(Offences("// All in minutes.\ndouble A();\ndouble B();\n"), "");
}

TEST(UnitRule, AcceptsNumbersThatSayThatTheyHaveNone) {
    EXPECT_EQ(Offences("// A number without a unit.\ndouble A();"), "");
    EXPECT_EQ(Offences("double A(double b);  // in any unit"), "");
    EXPECT_EQ(Offences("// Its numbers are in the caller's units.\nclass A { public: double B(); struct C {\n"
                       "double d; }; };"),
              "");
}

TEST(UnitRule, ACommentReachesAsFarAsItsGroup) {
    EXPECT_EQ(Offences("// In gallons.\ndouble A();\n\ndouble B();"), "4: result\n");
    EXPECT_EQ(Offences("// All in gallons.\n\n// The first.\ndouble A();\n\ndouble B();"), "");
    EXPECT_EQ(Offences("// All in gallons.\n\ndouble A();\n// Of no use.\n\ndouble B();"), "6: result\n");
    EXPECT_EQ(Offences("// A weight in grams.\nstruct A {\n  double weight;\n};\ndouble B();"),
              "3: weight\n5: result\n");
    EXPECT_EQ(Offences("double gallons;  // gallons\ndouble more;"), "2: more\n");
    EXPECT_EQ(Offences("class A {\n  // In grams.\n public:\n  double B();\n};"), "4: result\n");
}

TEST(UnitRule, ACommentOnAParameterDoesNotSpeakForTheResult) {
    EXPECT_EQ(Offences("// Of beer of that HCU.\nvoid A(double hcu, double hue);"), "2: hue\n");
    EXPECT_EQ(Offences("// For so many gallons.\ndouble A(double gallons);"), "2: result\n");
    EXPECT_EQ(Offences("// Ounces for so many gallons.\ndouble A(double gallons);"), "");
}

// "line: text | comment" of every public declaration.
std::string Declarations(std::string_view header) {
    std::string text;
    for (const PublicDeclaration& found : PublicDeclarationsOf(header))
        text += std::to_string(found.line) + ": " + found.text + " | " + found.comment + "\n";
    return text;
}

TEST(Declarations, EndBeforeBodiesAndInitialisers) {
    EXPECT_EQ(Declarations("namespace tw {\nint a = 3, b{4};\nbool operator==(const A&) const = default;\n"
                           "inline int F(int c = 3) {\n  return c;  // not read\n}  // read\n}"),
              "2: int a | \n3: bool operator==(const A&) const | \n4: inline int F(int c = 3) | read\n");
    EXPECT_EQ(Declarations("struct A : B {\n  A() : a_{1}, b_(2) {}\n} c;\nint d;"),
              "2: A() | \n4: int d | \n");
}

TEST(Declarations, ReadMacrosLabelsAndTemplates) {
    EXPECT_EQ(Declarations("class A : public B {\n  Q_OBJECT\n public:\n  A();\n signals:\n  void C();\n"
                           " private slots:\n  void D();\n};\ntemplate <class T, int n = 2>\nT E(T);"),
              "4: A() | \n6: void C() | \n11: T E(T) | \n");
}

}  // namespace
}  // namespace tw::test
