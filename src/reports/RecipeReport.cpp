// Writes the recipes of a report.
#include <map>
#include <optional>
#include <string>

#include "reports/MakeReportWriter.h"
#include "reports/ReportFile.h"
#include "values/Text.h"

namespace tw {
namespace {

std::optional<double> NumberOf(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Number();
}

std::optional<std::string> TextOf(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Text();
}

std::string Trimmed(const std::string& text) {
    return std::string(Trim(text));
}

class RecipeReport {
  public:
    RecipeReport(Database& database, const ReportUnits& units, ReportWriter& writer)
        : database_(database), units_(units), writer_(writer) {}

    // Writes nothing if no recipe has that name.
    void Write(std::string_view name);

  private:
    void WriteHead(const Recordset& recipe);
    void WriteGeneral(const Recordset& recipe);
    void WriteLine(std::string_view label, std::string_view value);
    // Writes a title and ends its line.
    void WriteTitle(std::string_view title);
    const std::string& StyleName(const Field& id);

    Database& database_;
    const ReportUnits& units_;
    ReportWriter& writer_;
    std::map<std::int64_t, std::string> styles_;
};

void RecipeReport::Write(std::string_view name) {
    const Recordset recipe = database_.OpenRecordset("SELECT * FROM RECIPES WHERE NAME = ?", {name});
    if (recipe.AtEnd()) return;
    WriteHead(recipe);
    WriteGeneral(recipe);
    // The sections of the ingredients consist only of their titles.
    for (const char* title :
         {"Water Treatment", "Malts and Grains", "Extracts and Sugars", "Hops", "Other Adjuncts"})
        WriteTitle(title);
    if (!IsBlank(recipe.Fields("CO2_VOLS").Text())) WriteTitle("Carbonation");
    const std::string notes = recipe.Fields("NOTES").Text();
    if (IsBlank(notes)) return;
    WriteTitle("Notes");
    writer_.WriteText(notes, false);
}

void RecipeReport::WriteHead(const Recordset& recipe) {
    writer_.WriteTitle(recipe.Fields("NAME").Text(), true);
    writer_.WriteText(StyleName(recipe.Fields("STYLE_ID")), true);
    writer_.ReportNewLine();
}

void RecipeReport::WriteGeneral(const Recordset& recipe) {
    const auto gravity = [&](const char* field) { return units_.Gravity(NumberOf(recipe.Fields(field))); };
    const auto volume = [&](const char* text, const char* gallons) {
        return units_.Volume(TextOf(recipe.Fields(text)), NumberOf(recipe.Fields(gallons)));
    };
    WriteTitle("General");
    WriteLine("Original Gravity: ", gravity("OG_DATA"));
    WriteLine("Final Gravity: ", gravity("FG_DATA"));
    WriteLine("Alcohol Content: ",
              units_.Alcohol(TextOf(recipe.Fields("ABV")), NumberOf(recipe.Fields("FG_DATA"))));
    WriteLine("Color: ", Trimmed(recipe.Fields("COLOR").Text()));
    WriteLine("Bitterness: ", recipe.Fields("IBU").Text() + " IBUs");
    WriteLine("Carbonation: ", recipe.Fields("CO2_VOLS").Text() + " of CO2");
    WriteLine("Boil Volume: ", volume("BV", "BV_DATA"));
    WriteLine("Total Volume: ", volume("FV", "FV_DATA"));
    WriteLine("Boil Gravity: ", gravity("BG_DATA"));
}

void RecipeReport::WriteLine(std::string_view label, std::string_view value) {
    writer_.WriteLabel(label, false);
    writer_.WriteText(value, false);
    writer_.ReportNewLine();
}

void RecipeReport::WriteTitle(std::string_view title) {
    writer_.WriteTitle(title, false);
    writer_.ReportNewLine();
}

const std::string& RecipeReport::StyleName(const Field& id) {
    const auto [found, added] = styles_.try_emplace(id.Integer());
    if (added) {
        const Recordset style =
            database_.OpenRecordset("SELECT NAME FROM STYLES WHERE ID = ?", {found->first});
        if (!style.AtEnd()) found->second = Trimmed(style.Fields(0).Text());
    }
    return found->second;
}

}  // namespace

void WriteReport(Database& database, const std::vector<std::string>& names, const ReportUnits& units,
                 ReportType type, const ReportOptions& options, ReportStream& stream) {
    const std::unique_ptr<ReportWriter> writer = MakeReportWriter(type, options, stream);
    RecipeReport report(database, units, *writer);
    writer->BeginReport();
    for (std::size_t i = 0; i < names.size(); ++i) {
        report.Write(names[i]);
        if (type == ReportType::Text || i + 1 < names.size()) writer->ReportSeparator();
    }
    writer->EndReport();
}

}  // namespace tw
