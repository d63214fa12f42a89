// The window of the import from other programs without its window: what it lists, its remedies, its import.
#include "doctor/ImportDoctorModel.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "DoctorTest.h"
#include "support/SilentStore.h"
#include "tree/TreeObjects.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

// A recipe of 20 litres. Its grist of 5 kg of 78 % yield is ordinary; the figures come before it.
std::string XmlRecipe(const std::string& name, const std::string& extra = {}) {
    return "<RECIPE><NAME>" + name +
           "</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BATCH_SIZE>20</BATCH_SIZE>"
           "<BOIL_SIZE>24</BOIL_SIZE><EFFICIENCY>75</EFFICIENCY>" +
           extra +
           "<FERMENTABLES><FERMENTABLE><NAME>Pale Malt</NAME><VERSION>1</VERSION><AMOUNT>5</AMOUNT>"
           "<TYPE>Grain</TYPE><YIELD>78</YIELD><COLOR>3</COLOR></FERMENTABLE></FERMENTABLES></RECIPE>";
}

std::string Xml(const std::string& recipes) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><RECIPES>" + recipes + "</RECIPES>";
}

// Copies without asking, unless a test queues answers.
class Brewer final : public CopyHost {
  public:
    explicit Brewer(ProgressModel& progress) : progress_(progress) {}
    bool Continue(const std::string& name, int number, int total) override {
        log->push_back(name + " " + std::to_string(number) + "/" + std::to_string(total));
        return progress_.Show(name, number, total) && static_cast<int>(log->size()) <= stopAfter;
    }
    ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) override {
        log->push_back(name + " exists, " + freeName + " is free");
        if (answers->empty()) return {};
        const ConflictAnswer answer = answers->front();
        answers->pop_front();
        return answer;
    }
    bool ContinueAfter(const std::string&) override { return false; }

    Strings* log = nullptr;
    std::deque<ConflictAnswer>* answers = nullptr;
    int stopAfter = 1000;

  private:
    ProgressModel& progress_;
};

class ImportDoctor : public DoctorTest, private ImportDoctorHost {
  protected:
    ImportDoctor() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        database->Execute("INSERT INTO FOLDERS (NAME, PARENT_ID, STYLE) VALUES ('Club', 0, FALSE)");
        tree.InitFromDatabase();
    }
    ~ImportDoctor() override { std::filesystem::remove_all(folder); }

    std::string File(const std::string& name, const std::string& content) {
        const std::string path = (folder / name).string();
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    std::string Content(const std::string& name) {
        std::ifstream file(folder / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    Strings Stored() {
        Strings names;
        for (Recordset rows = database->OpenRecordset("SELECT NAME FROM RECIPES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            names.push_back(rows.Fields(0).Text());
        return names;
    }
    const DoctorRecipe& Recipe(std::size_t file, std::size_t index) {
        return model.Files().All()[file].recipes[index];
    }
    static DoctorItem FileItem(std::size_t file) { return {DoctorItem::Kind::File, file, 0}; }
    static DoctorItem RecipeItem(std::size_t file, std::size_t recipe) {
        return {DoctorItem::Kind::Recipe, file, recipe};
    }
    // Cancels the progress window of the next operation on more than ten objects.
    void CancelNextProgress() { cancelling = true; }

    // ImportDoctorHost
    std::unique_ptr<CopyHost> Copying(ProgressModel& progress) override {
        auto brewer = std::make_unique<Brewer>(progress);
        brewer->log = &log;
        brewer->answers = &answers;
        brewer->stopAfter = stopAfter;
        return brewer;
    }
    void Imported(int recipes, ImportUnits units) override {
        told.push_back(std::to_string(recipes) + " in units " + std::to_string(static_cast<int>(units)));
    }

    // Dialogs that can be cancelled while they work.
    class Dialogs final : public DialogPort {
      public:
        explicit Dialogs(ImportDoctor& test) : test_(test) {}
        void ShowModal(DialogModel& dialog) override {
            auto* const progress = dynamic_cast<ProgressModel*>(&dialog);
            if (progress && test_.cancelling) {
                progress->SetObserver([progress] { progress->CloseBox(); });
                test_.cancelling = false;
            }
            test_.platform.dialogs.ShowModal(dialog);
        }

      private:
        ImportDoctor& test_;
    };

    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) /
        ("tunwright_import_doctor_" +
         std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    bool cancelling = false;
    int stopAfter = 1000;
    Strings log, told;
    std::deque<ConflictAnswer> answers;
    Dialogs dialogs{*this};
    Platform ports{platform.messages, dialogs, platform.settings, platform.clock, platform.clipboard};
    TWTree tree{database.get()};
    TreeObjects treeObjects{tree};
    NoListener nobody;
    DB_IO objects{*database, treeObjects, platform.messages, platform.clock, nobody};
    OwnFiles own;
    ImportDoctorModel model{doctor, {*database, tree, objects, ports}, own, *this, {}};
};

TEST_F(ImportDoctor, BeginsEmptyWithNothingToDo) {
    EXPECT_EQ(model.Text("treeRecipes"), "");
    EXPECT_EQ(model.Text("treeFindings"), "");
    EXPECT_EQ(model.Text("chkImport"), "no");
    EXPECT_EQ(model.Text("chkCatalogue"), "yes");
    for (const char* remedy : {"chkGrams", "chkGravity", "chkBitterness", "chkEbc"}) {
        EXPECT_EQ(model.Text(remedy), "no") << remedy;
        EXPECT_FALSE(model.SetControl(remedy, "yes")) << remedy;
    }
    EXPECT_FALSE(model.SetControl("chkAddStyles", "yes"));
    EXPECT_FALSE(model.SetControl("chkAddIngredients", "yes"));
    EXPECT_FALSE(model.SetControl("chkImport", "yes"));
    EXPECT_EQ(model.Text("cmbUnits"), "As in the file");
    EXPECT_EQ(model.Text("lblFolder"), "My Recipe Folders");
    EXPECT_FALSE(model.IsEnabled("cmdImport"));
    EXPECT_FALSE(model.IsEnabled("cmdReport"));
    EXPECT_TRUE(model.Press("cmdCancel"));
    EXPECT_FALSE(model.IsOpen());
    EXPECT_TRUE(model.Cancelled());
}

TEST_F(ImportDoctor, ListsFilesWithTheirRecipesAndFigures) {
    // The file states 1.052, 5.2 % and 12 SRM; 5 kg of 78 % at 75 % give another gravity.
    model.AddFiles(
        {File("club.xml", Xml(XmlRecipe("Pale", "<OG>1.052</OG><ABV>5.2 %</ABV>") + XmlRecipe("Mild"))),
         File("more.xml", Xml(XmlRecipe("Bitter")))});
    ASSERT_EQ(model.Files().All().size(), 2u);
    EXPECT_EQ(model.Files().All()[0].name, "club.xml");
    ASSERT_EQ(model.Files().All()[0].recipes.size(), 2u);
    EXPECT_EQ(Recipe(0, 0).name, "Pale");
    EXPECT_EQ(Recipe(0, 0).stated.og, 1.052);
    ASSERT_TRUE(Recipe(0, 0).calculated.og);
    EXPECT_EQ(Recipe(0, 1).stated.og, std::nullopt);
    EXPECT_EQ(model.Selected(), FileItem(0));
    EXPECT_EQ(model.Text("treeRecipes"), "club.xml");
    EXPECT_TRUE(model.SetControl("treeRecipes", "Bitter"));
    EXPECT_EQ(model.Selected(), RecipeItem(1, 0));
    EXPECT_TRUE(model.SetControl("treeRecipes", "more.xml"));
    EXPECT_EQ(model.Selected(), FileItem(1));
    EXPECT_FALSE(model.SetControl("treeRecipes", "Stout"));
    EXPECT_FALSE(model.SetControl("treeRecipes", "The import"));
    // Files that are listed already are not added again, whatever their path.
    model.AddFiles({(folder / "." / "club.xml").string()});
    EXPECT_EQ(model.Files().All().size(), 2u);
    // Nothing that the program writes may replace them.
    EXPECT_THROW(own.Check((folder / "club.xml").string()), OwnFileError);
}

TEST_F(ImportDoctor, TheBoxOfAFileIsThatOfAllItsRecipes) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale") + XmlRecipe("Mild")))});
    EXPECT_EQ(model.Text("chkImport"), "yes");
    model.Choose(RecipeItem(0, 1), false);
    EXPECT_EQ(model.ChoiceOf(FileItem(0)), Choice::Some);
    EXPECT_EQ(model.Text("chkImport"), "some");
    EXPECT_TRUE(model.IsEnabled("cmdImport"));
    EXPECT_TRUE(model.SetControl("chkImport", "no"));
    EXPECT_EQ(model.ChoiceOf(RecipeItem(0, 0)), Choice::None);
    EXPECT_FALSE(model.IsEnabled("cmdImport"));
    EXPECT_TRUE(model.SetControl("chkImport", "yes"));
    EXPECT_EQ(model.ChoiceOf(FileItem(0)), Choice::All);
    EXPECT_FALSE(model.SetControl("chkImport", "some"));
}

TEST_F(ImportDoctor, FindingsAreThoseOfTheSelection) {
    // A comma in one recipe; 30 kg of malt in 20 litres, 1,500 g a litre, are suspicious in the other.
    std::string heavy = XmlRecipe("Heavy");
    heavy.replace(heavy.find("<AMOUNT>5<"), 10, "<AMOUNT>30<");
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale", "<OG>1,052</OG>") + heavy))});
    const auto findings = [&](const char* name) {
        EXPECT_TRUE(model.SetControl("treeRecipes", name));
        return model.Text("treeFindings");
    };
    const std::string ofPale = findings("Pale"), ofHeavy = findings("Heavy"), ofFile = findings("club.xml");
    EXPECT_THAT(ofHeavy, testing::StartsWith("suspicious: "));
    EXPECT_THAT(ofPale, testing::HasSubstr("repaired: "));
    EXPECT_THAT(ofHeavy, testing::Not(testing::HasSubstr("repaired: ")));
    // Those of the file are all, the worst first.
    EXPECT_THAT(ofFile, testing::StartsWith("suspicious: Heavy"));
    EXPECT_THAT(ofFile, testing::HasSubstr("repaired: Pale"));
    EXPECT_EQ(model.Files().All()[0].Worst(), Severity::Suspicious);
    EXPECT_EQ(WorstOf(Recipe(0, 1).findings), Severity::Suspicious);
    const std::size_t count = model.Files().All()[0].AllFindings().size();
    EXPECT_EQ(model.Text("lblFindings"), "club.xml: " + std::to_string(count) + " findings");
}

TEST_F(ImportDoctor, AFileTellsOnceThatPelletsCountMoreHere) {
    const auto hopped = [](const std::string& name, const std::string& form) {
        return XmlRecipe(name,
                         "<IBU>30</IBU><HOPS><HOP><NAME>Cascade</NAME><VERSION>1</VERSION><ALPHA>6</ALPHA>"
                         "<AMOUNT>0.04</AMOUNT><USE>Boil</USE><TIME>60</TIME><FORM>" +
                             form + "</FORM></HOP></HOPS>");
    };
    model.AddFiles({File("pellets.xml", Xml(hopped("Pale", "Pellet") + hopped("Mild", "Pellet"))),
                    File("leaf.xml", Xml(hopped("Stout", "Leaf")))});
    const auto notes = [&](const std::vector<FindingLine>& lines) {
        return std::ranges::count_if(lines, [](const FindingLine& line) {
            return line.text.starts_with("Pellets count 15% more here");
        });
    };
    EXPECT_EQ(notes(model.Files().All()[0].findings), 1);
    EXPECT_EQ(notes(model.Files().All()[0].AllFindings()), 1);
    EXPECT_EQ(notes(model.Files().All()[1].AllFindings()), 0);
}

TEST_F(ImportDoctor, ANamelessRecipeHasTheNameOfItsFindings) {
    std::string nameless = XmlRecipe("", "<OG>1,052</OG>");
    model.AddFiles({File("club.xml", Xml(nameless))});
    EXPECT_EQ(Recipe(0, 0).name, "Untitled");
    // The comma is one of its findings, not one of the file.
    EXPECT_TRUE(model.SetControl("treeRecipes", "Untitled"));
    EXPECT_THAT(model.Text("treeFindings"), testing::HasSubstr("with a comma"));
    EXPECT_TRUE(model.Files().All()[0].findings.empty());
}

TEST_F(ImportDoctor, AFileThatCannotBeReadStaysInTheList) {
    model.AddFiles({File("page.xml", "<html><body>no beer</body></html>"), (folder / "missing.xml").string(),
                    File("draft.xml", "<beer_xml><version>2.06</version></beer_xml>"),
                    File("good.xml", Xml(XmlRecipe("Pale")))});
    ASSERT_EQ(model.Files().All().size(), 4u);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(model.Files().All()[i].IsRefused()) << i;
        EXPECT_EQ(model.Files().All()[i].Worst(), Severity::Refused) << i;
        EXPECT_EQ(model.ChoiceOf(FileItem(i)), Choice::None) << i;
    }
    EXPECT_EQ(model.Text("treeFindings"), "refused: This is no file of another brewing program.\n");
    EXPECT_TRUE(model.SetControl("treeRecipes", "draft.xml"));
    EXPECT_THAT(model.Text("treeFindings"), testing::HasSubstr("draft of BeerXML 2"));
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), Strings{"Pale"});
    // The window stays open and says what was not imported.
    EXPECT_TRUE(model.IsOpen());
    EXPECT_EQ(model.Text("treeRecipes"), "The import");
    EXPECT_EQ(model.Text("treeFindings"),
              "refused: page.xml: This file could not be read.\n"
              "refused: missing.xml: This file could not be read.\n"
              "refused: draft.xml: This file could not be read.\n"
              "note: good.xml: Imported 1 recipe.\n");
    EXPECT_FALSE(model.IsEnabled("cmdImport")) << "it would import the recipe again";
}

TEST_F(ImportDoctor, RemediesAreOfferedForChosenRecipesAlone) {
    // 5,000 kg of malt in 20 litres are grams.
    std::string grams = XmlRecipe("Grams");
    grams.replace(grams.find("<AMOUNT>5<"), 10, "<AMOUNT>5000<");
    // 1.070 instead of about 1.056: an extraction of 93 % instead of 75 % gives it.
    model.AddFiles({File("club.xml", Xml(grams + XmlRecipe("Strong", "<OG>1.070</OG>")))});
    EXPECT_TRUE(Recipe(0, 0).offered.grams);
    EXPECT_TRUE(Recipe(0, 1).offered.gravity);
    EXPECT_TRUE(model.IsOffered("chkGrams"));
    model.Choose(RecipeItem(0, 0), false);
    EXPECT_FALSE(model.IsOffered("chkGrams"));
    EXPECT_FALSE(model.SetControl("chkGrams", "yes"));
    EXPECT_TRUE(model.IsOffered("chkGravity"));
    ASSERT_TRUE(model.SetControl("chkGravity", "yes"));
    ASSERT_TRUE(Recipe(0, 1).calculated.og);
    EXPECT_NEAR(*Recipe(0, 1).calculated.og, 1.070, 0.0005);
    ASSERT_TRUE(model.SetControl("chkGravity", "no"));
    EXPECT_LT(*Recipe(0, 1).calculated.og, 1.065);
    model.Choose(RecipeItem(0, 0), true);
    ASSERT_TRUE(model.SetControl("chkGrams", "yes"));
    // Now the same malt as in the other recipe, which gives the same gravity.
    ASSERT_TRUE(Recipe(0, 0).calculated.og);
    EXPECT_NEAR(*Recipe(0, 0).calculated.og, *Recipe(0, 1).calculated.og, 0.0005);
    EXPECT_FALSE(model.SetControl("chkGrams", "perhaps"));
}

TEST_F(ImportDoctor, UnitsAreThoseOfTheTextsAndAreKept) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale")))});
    EXPECT_FALSE(model.SetControl("cmbUnits", "Imperial"));
    ASSERT_TRUE(model.SetControl("cmbUnits", "US"));
    EXPECT_EQ(model.Text("cmbUnits"), "US");
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_FALSE(model.IsOpen());
    EXPECT_FALSE(model.Cancelled());
    EXPECT_EQ(told, Strings{"1 in units 1"});
    Recordset rows = database->OpenRecordset("SELECT TV FROM RECIPES");
    // 20 litres are 20 / 3.785411784 = 5.2834 gallons.
    EXPECT_THAT(rows.Fields(0).Text(), testing::StartsWith("5.283"));
}

TEST_F(ImportDoctor, WithoutTheCatalogueUnknownFiguresStayUnknown) {
    std::string bare = XmlRecipe("Bare");
    bare.erase(bare.find("<YIELD>78</YIELD>"), 17);
    model.AddFiles({File("club.xml", Xml(bare))});
    // Pale Malt has 36 to 38 points in the catalogue.
    ASSERT_TRUE(Recipe(0, 0).calculated.og);
    ASSERT_TRUE(model.SetControl("chkCatalogue", "no"));
    EXPECT_FALSE(Recipe(0, 0).calculated.og.value_or(1) > 1.001);
}

TEST_F(ImportDoctor, StylesAndIngredientsAreOfferedIfAFileHasSuch) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale")))});
    EXPECT_FALSE(model.IsOffered("chkAddStyles"));
    EXPECT_FALSE(model.IsOffered("chkAddIngredients"));
    model.AddFiles({File("hops.xml",
                         "<HOPS><HOP><NAME>Fuggle</NAME><VERSION>1</VERSION><ALPHA>4.5</ALPHA>"
                         "<AMOUNT>0</AMOUNT><USE>Boil</USE><TIME>0</TIME></HOP></HOPS>"),
                    File("style.xml", Xml(XmlRecipe("Odd",
                                                    "<STYLE><NAME>Moon Ale</NAME><CATEGORY>Odd</CATEGORY>"
                                                    "<VERSION>1</VERSION></STYLE>")))});
    EXPECT_TRUE(model.IsOffered("chkAddIngredients"));
    EXPECT_TRUE(model.IsOffered("chkAddStyles"));
    ASSERT_TRUE(model.SetControl("chkAddIngredients", "yes"));
    ASSERT_TRUE(model.SetControl("chkAddStyles", "yes"));
    EXPECT_TRUE(model.Options().addIngredients);
    EXPECT_TRUE(model.Options().addStyles);
    // Entries for the catalogue are something to import, too.
    for (std::size_t i = 0; i < 3; ++i) model.Choose(FileItem(i), false);
    EXPECT_TRUE(model.IsEnabled("cmdImport"));
    ASSERT_TRUE(model.SetControl("chkAddIngredients", "no"));
    EXPECT_FALSE(model.IsEnabled("cmdImport"));
}

// The editor of hops takes percentages up to 100.
TEST_F(ImportDoctor, TheAccountTellsWhatBecameOfNewEntries) {
    const std::string rest = "<VERSION>1</VERSION><AMOUNT>0</AMOUNT><USE>Boil</USE><TIME>0</TIME></HOP>";
    model.AddFiles(
        {File("hops.xml", "<HOPS><HOP><NAME>Moonleaf</NAME><ALPHA>4.5</ALPHA>" + rest +
                              "<HOP><NAME>Sunleaf</NAME><ALPHA>45000</ALPHA>" + rest + "</HOPS>")});
    ASSERT_TRUE(model.SetControl("chkAddIngredients", "yes"));
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(model.Account(),
              (std::vector<FindingLine>{
                  {Severity::Note, "hops.xml", "The hop variety 'Moonleaf' was added."},
                  {Severity::Refused, "hops.xml",
                   "The hop variety 'Sunleaf' was not added: Please enter a percentage (0 to 100)"}}));
    // Something was left out.
    EXPECT_TRUE(model.IsOpen());
}

TEST_F(ImportDoctor, TheFolderIsChosenInItsDialog) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale")))});
    platform.dialogs.scripts.push_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "frmChooseFolder");
        EXPECT_TRUE(dialog.SetControl("FolderChooser1", "1"));
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(model.Press("cmdFolder"));
    EXPECT_EQ(model.Text("lblFolder"), "Club");
    // Cancelled, it changes nothing.
    EXPECT_TRUE(model.Press("cmdFolder"));
    EXPECT_EQ(model.Text("lblFolder"), "Club");
    EXPECT_TRUE(model.Press("cmdImport"));
    Recordset rows = database->OpenRecordset("SELECT FOLDER_ID FROM RECIPES");
    EXPECT_EQ(rows.Fields(0).Text(), "1");
}

TEST_F(ImportDoctor, MoreFilesAreAskedForInTheDialogOfFiles) {
    const std::string path = File("club.xml", Xml(XmlRecipe("Pale")));
    platform.dialogs.scripts.push_back([&](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "CommonDialog");
        EXPECT_TRUE(dialog.SetControl("FileName", path));
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(model.Press("cmdAddFiles"));
    EXPECT_EQ(model.Text("treeRecipes"), "club.xml");
    EXPECT_TRUE(model.Press("cmdAddFiles"));
    EXPECT_EQ(model.Files().All().size(), 1u);
}

TEST_F(ImportDoctor, TheReportHoldsFindingsAndFiguresByFileAndRecipe) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale", "<OG>1,052</OG>"))), File("odd.xml", "no beer")});
    const auto save = [&](const std::string& path) {
        platform.dialogs.scripts.push_back([path](DialogModel& dialog) {
            EXPECT_TRUE(dialog.SetControl("FileName", path));
            dialog.Press("cmdOK");
        });
        EXPECT_TRUE(model.Press("cmdReport"));
    };
    save((folder / "report").string());
    const std::string report = Content("report.txt");
    EXPECT_THAT(report, testing::StartsWith("Import from other programs, "));
    EXPECT_THAT(report, testing::HasSubstr("\r\nFile " + (folder / "club.xml").string() + "\r\n"));
    EXPECT_THAT(report, testing::HasSubstr("\r\n  Recipe Pale\r\n    OG: 1.052 stated, 1.0"));
    EXPECT_THAT(report, testing::HasSubstr("\r\n    repaired: "));
    EXPECT_THAT(report, testing::HasSubstr("\r\n  refused: This is no file of another brewing program.\r\n"));
    // A file that is listed is not replaced.
    const std::string before = Content("club.xml");
    platform.messages.answers = {Answer::Yes};
    save((folder / "club.xml").string());
    EXPECT_EQ(Content("club.xml"), before);
    EXPECT_THAT(platform.messages.log.back(), testing::HasSubstr("is being imported"));
    EXPECT_TRUE(model.IsOpen());
}

TEST_F(ImportDoctor, ImportsTheChosenRecipesOfAllFiles) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale") + XmlRecipe("Mild"))),
                    File("more.xml", Xml(XmlRecipe("Bitter")))});
    model.Choose(RecipeItem(0, 1), false);
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), (Strings{"Bitter", "Pale"}));
    EXPECT_EQ(log, (Strings{"Pale 0/2", "Bitter 1/2"}));
    EXPECT_EQ(told, Strings{"2 in units 0"});
    EXPECT_FALSE(model.IsOpen());
}

TEST_F(ImportDoctor, ASkippedRecipeStaysChosen) {
    model.AddFiles({File("club.xml", Xml(XmlRecipe("Pale") + XmlRecipe("Pale")))});
    answers = {{ConflictResponse::Skip, {}}};
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), Strings{"Pale"});
    EXPECT_TRUE(model.IsOpen());
    EXPECT_EQ(model.Text("treeFindings"),
              "note: club.xml: Imported 1 recipe.\n"
              "not carried: club.xml: 'Pale' was skipped, because there is a recipe of that name.\n");
    EXPECT_EQ(model.ChoiceOf(RecipeItem(0, 0)), Choice::None);
    EXPECT_EQ(model.ChoiceOf(RecipeItem(0, 1)), Choice::All);
    answers = {{ConflictResponse::Rename, "Pale (2)"}};
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), (Strings{"Pale", "Pale (2)"}));
    EXPECT_FALSE(model.IsOpen());
}

TEST_F(ImportDoctor, WhatWasImportedBeforeTheCancelStays) {
    model.AddFiles({File("a.xml", Xml(XmlRecipe("A1") + XmlRecipe("A2"))),
                    File("b.xml", Xml(XmlRecipe("B1") + XmlRecipe("B2"))),
                    File("c.xml", Xml(XmlRecipe("C1")))});
    stopAfter = 3;  // the fourth recipe is the second of b.xml
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), (Strings{"A1", "A2"}));
    EXPECT_EQ(log, (Strings{"A1 0/5", "A2 1/5", "B1 2/5", "B2 3/5"}));
    EXPECT_EQ(told, Strings{"2 in units 0"});
    EXPECT_TRUE(model.IsOpen());
    EXPECT_EQ(model.Text("treeFindings"),
              "note: a.xml: Imported 2 recipes.\n"
              "refused: b.xml: Nothing was imported, because you cancelled.\n"
              "refused: c.xml: Nothing was imported, because you cancelled.\n");
    // The rest can be imported then.
    stopAfter = 1000;
    log.clear();
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), (Strings{"A1", "A2", "B1", "B2", "C1"}));
}

TEST_F(ImportDoctor, AbortInTheDialogOfNamesCancels) {
    model.AddFiles({File("a.xml", Xml(XmlRecipe("Pale"))), File("b.xml", Xml(XmlRecipe("Pale")))});
    answers = {{ConflictResponse::Abort, {}}};
    EXPECT_TRUE(model.Press("cmdImport"));
    EXPECT_EQ(Stored(), Strings{"Pale"});
    EXPECT_TRUE(model.IsOpen());
}

TEST_F(ImportDoctor, AFileThatFailsLeavesTheOthers) {
    model.AddFiles({File("a.xml", Xml(XmlRecipe("Pale"))), File("b.xml", Xml(XmlRecipe("Mild")))});
    bool failed = false;
    database->SetStatementHook([&](std::string_view sql) {
        if (failed || sql.find("INSERT INTO") == std::string_view::npos) return;
        failed = true;
        throw Error("Database", "The disk failed.", 10);
    });
    EXPECT_TRUE(model.Press("cmdImport"));
    database->SetStatementHook({});
    EXPECT_TRUE(failed);
    EXPECT_EQ(Stored(), Strings{"Mild"});
    EXPECT_EQ(model.Text("treeFindings"),
              "refused: a.xml: Nothing was imported: The disk failed.\n"
              "note: b.xml: Imported 1 recipe.\n");
    EXPECT_EQ(model.ChoiceOf(RecipeItem(0, 0)), Choice::All) << "it can be tried again";
}

TEST_F(ImportDoctor, ACancelledExaminationChangesNothing) {
    std::string recipes;
    for (int i = 0; i < 12; ++i) recipes += XmlRecipe("Ale " + std::to_string(i));
    const std::string path = File("club.xml", Xml(recipes));
    CancelNextProgress();
    model.AddFiles({path});
    EXPECT_TRUE(model.Files().All().empty());
    EXPECT_EQ(model.Selected(), std::nullopt);
    EXPECT_EQ(platform.dialogs.shown, Strings{"frmProgress"});
    model.AddFiles({path});
    EXPECT_EQ(model.Files().All().size(), 1u);
    CancelNextProgress();
    EXPECT_TRUE(model.SetControl("cmbUnits", "Metric"));
    EXPECT_EQ(model.Text("cmbUnits"), "As in the file");
    EXPECT_TRUE(model.SetControl("cmbUnits", "Metric"));
    EXPECT_EQ(model.Text("cmbUnits"), "Metric");
}

TEST_F(ImportDoctor, AnErrorOfTheDatabaseIsShown) {
    const std::string path = File("club.xml", Xml(XmlRecipe("Pale")));
    database->SetStatementHook([](std::string_view) { throw Error("Database", "The disk failed.", 10); });
    model.AddFiles({path});
    database->SetStatementHook({});
    EXPECT_EQ(platform.messages.log, Strings{"[Error] The disk failed. (10)"});
    EXPECT_TRUE(model.Files().All().empty());
}

TEST(FoldingFindings, JoinsWhatDiffersInNumbersAndQuotedWordsAlone) {
    const auto line = [](Severity severity, const char* place, const char* text) {
        return FindingLine{severity, place, text};
    };
    const std::vector<FoldedFinding> folded =
        Fold({line(Severity::Note, "Hops 1", "The amount '5 g' is read as 0.005 kg."),
              line(Severity::Suspicious, "Hops 1", "Alpha of 50 % is odd."),
              line(Severity::Note, "Hops 2", "The amount 'the brewer's 7,5 g' is read as 0.0075 kg."),
              line(Severity::Note, "", "The file's end is missing."),
              line(Severity::Repaired, "Hops 3", "The amount '5 g' is read as 0.005 kg."),
              line(Severity::Suspicious, "Hops 4", "Alpha of 50 % is odd.")});
    ASSERT_EQ(folded.size(), 4u);
    EXPECT_EQ(folded[0].text, "2 times: Alpha of 50 % is odd.");
    EXPECT_EQ(folded[0].place, "");
    EXPECT_EQ(folded[0].severity, Severity::Suspicious);
    EXPECT_EQ(folded[1].text, "The amount '5 g' is read as 0.005 kg.");
    EXPECT_EQ(folded[1].place, "Hops 3");
    EXPECT_EQ(folded[2].text, "2 times, such as: The amount '5 g' is read as 0.005 kg.");
    ASSERT_EQ(folded[2].lines.size(), 2u);
    EXPECT_EQ(folded[2].lines[1].place, "Hops 2");
    EXPECT_EQ(folded[3].text, "The file's end is missing.");
    EXPECT_EQ(Fold({}).size(), 0u);
    EXPECT_EQ(WorstOf({}), std::nullopt);
}

}  // namespace
}  // namespace tw::test
