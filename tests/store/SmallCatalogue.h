// A folder with a small, valid catalogue, and a database to load it into.
#pragma once

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "store/CatalogueLoader.h"
#include "store/Database.h"
#include "store/Schema.h"

namespace tw {

inline constexpr DateTime kCreated{.year = 2024, .month = 2, .day = 29, .hour = 13, .minute = 5, .second = 7};

// A folder with a small, valid catalogue, deleted after the test.
class SmallCatalogue : public testing::Test {
  protected:
    void SetUp() override {
        static int count = 0;
        folder_ = std::filesystem::path(testing::TempDir()) /
                  ("catalogue_" + std::to_string(getpid()) + "_" + std::to_string(++count));
        std::filesystem::create_directories(folder_);
        Append("grain_types.tsv", "name\tkind\nBase Malt\tgrain\nSugar\textract\n");
        Append("grains.tsv",
               "name\tkind\ttype\tppg_lo\tppg_hi\tcolor_lo\tcolor_hi\tdescription\tbasis\n"
               "Pale Malt\tgrain\tBase Malt\t36\t37.5\t1.8\t2\tA base.\tpublished\n"
               "Honey\textract\tSugar\t\t\t\t\t\tsecondary\n");
        Append("hops.tsv",
               "name\tusage\torigin\tform\talpha_lo\talpha_hi\tdescription\tbasis\n"
               "Brewer's Gold\tBittering\tEngland\tCryo\t8\t10\tDark fruit.\tpublished\n"
               "Wild Hop\t\t\t\t\t\t\t\n");
        Append("yeast.tsv",
               "name\tlaboratory\tproduct_code\tform\ttype\tflocculation\tattenuation_lo\tattenuation_hi\t"
               "temp_lo\ttemp_hi\tshort_description\tdescription\tbasis\n"
               "Kölsch Yeast\tDom Labs\tD-1\tDry\tAle\tVery High\t72\t78\t65\t69\tClean\tCrisp and "
               "clean.\tpublished\n"
               "Cider Yeast\tDom Labs\t\tLiquid\tWine/Mead/Cider\tLow\t75\t80\t54\t82\t\t\t\n"
               "House Yeast\t\t\t\t\t\t\t\t\t\t\t\t\n");
        Append("water_profiles.tsv",
               "name\tca\tco3\tcl\tmg\tna\tso4\tdescription\n"
               "Pilsen\t7\t15\t5\t2\t2\t5.5\tSoft.\n");
        Append("salts.tsv",
               "name\tca\tco3\tcl\tmg\tna\tso4\tdescription\nGypsum\t61.5\t0\t0\t0\t0\t147.4\t\n");
        Append("sugars.tsv",
               "name\tfermentable_lo\tfermentable_hi\tdescription\nCane\t97\t100\tWhite.\nPanela\t\t\t\n");
        Append(
            "styles.tsv",
            "name\tcode\tguide\tfolder\ttype\twater_profile\tog_lo\tog_hi\tfg_lo\tfg_hi\tabv_lo\tabv_"
            "hi\tcolor_"
            "lo\tcolor_hi\t"
            "ibu_lo\tibu_hi\tco2_lo\tco2_hi\tdescription\n"
            "Pils\t5D\tBeer 2021\tPale "
            "Beer\tLager\tPilsen\t1.044\t1.050\t1.008\t1.013\t4.4\t5.2\t2\t4\t22\t40\t2.4\t2.7\tDry.\n"
            "Fruit Beer\t29A\tBeer 2021\tOther Beer\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\n"
            "Helles\t5D\tBeer 2021\tPale Beer\tLager\t\t1.044\t1.048\t1.006\t1.012\t\t\t\t\t\t\t\t\tMild.\n");
        Append("aliases.tsv",
               "alias\tkind\tname\n"
               "Pilsner\tstyle\tPils\n"
               "BG\thop\tBrewer's Gold\n"
               "Sugar\tsugar\tCane\n"
               "Sugar\tfermentable\tHoney\n"
               "Miel\tfermentable\tHoney\n");
        Append("former.tsv", "name\tkind\tfate\tfolder\n");
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    void Append(const std::string& file, const std::string& text) const {
        std::ofstream(folder_ / file, std::ios::binary | std::ios::app) << text;
    }
    void Replace(const std::string& file, const std::string& text) const {
        std::filesystem::remove(folder_ / file);
        Append(file, text);
    }

    // Replaces one text by another in a file.
    void Edit(const std::string& file, const std::string& from, const std::string& to) const {
        std::ifstream in(folder_ / file, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        std::string text = bytes.str();
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        Replace(file, text.replace(at, from.size(), to));
    }

    // Loads the catalogue and returns its problems, each as "{file}:{line}: {what}" with the
    // bare name of the file.
    std::vector<std::string> Load() {
        std::vector<std::string> texts;
        for (CatalogueProblem& problem : LoadCatalogue(folder_.string(), *database_, kCreated)) {
            problem.file = std::filesystem::path(problem.file).filename().string();
            texts.push_back(problem.Text());
        }
        return texts;
    }
    // Returns the rows of a SELECT, each with its fields separated by "|"; NULL is "NULL".
    std::vector<std::string> Rows(const std::string& sql) {
        std::vector<std::string> rows;
        for (Recordset records = database_->OpenRecordset(sql); !records.AtEnd(); records.MoveNext()) {
            std::string row;
            for (int at = 0; at < records.FieldCount(); ++at) {
                if (at > 0) row += "|";
                row += records.Fields(at).IsNull() ? "NULL" : records.Fields(at).Text();
            }
            rows.push_back(row);
        }
        return rows;
    }
    void ExpectNothingWritten() {
        for (const char* table : {"FOLDERS", "STYLES", "GRAIN_TYPES", "GRAINS", "HOPS", "YEAST",
                                  "WATER_PROFILES", "SALTS", "SUGARS"}) {
            EXPECT_THAT(Rows(std::string("SELECT * FROM ") + table), testing::IsEmpty()) << table;
        }
    }

    std::filesystem::path folder_;
    std::unique_ptr<Database> database_ = CreateMainDatabaseInMemory();
};

}  // namespace tw
