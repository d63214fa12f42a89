// Types a whole pale ale as a brewer would, with names as brewers say them, and counts the keys.
#include "GuiTest.h"
#include "document/FigureRules.h"
#include "document/StyleRange.h"
#include "shell/BrewhouseModel.h"
#include "store/CatalogueLoader.h"
#include "tree/CataloguePickerModel.h"

namespace tw::test {
namespace {

class PaleAle : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        ASSERT_TRUE(LoadCatalogue(CATALOGUE_FOLDER, *shell.DB(), std::nullopt).empty());
        BrewhouseModel(shell.SettingsNow(), *shell.DB(), outside.messages, BrewhouseModel::Start::SuggestUS)
            .Press("cmdOK");
    }
    void Words(const char* text) {
        keys_ += static_cast<int>(std::string_view(text).size());
        Type(text);
    }
    void Command(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ++keys_;
        ++commands_;
        Key(key, modifiers);
    }
    // Types the entries, each followed by Tab.
    void Cells(std::initializer_list<const char*> entries) {
        for (const char* entry : entries) {
            Words(entry);
            Command(Qt::Key_Tab);
        }
    }
    // The menus of the window work in a test without a window manager only as commands.
    void Menu(CommandId command) {
        ++keys_;
        ++commands_;
        ASSERT_TRUE(window.RunCommand(command));
    }
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }

    int keys_ = 0, commands_ = 0;
};

TEST_F(PaleAle, IsTypedSavedAndToItsStyleWithFewKeys) {
    Menu(CommandId::FileNew);
    Cells({"Pale", "apa"});
    Command(Qt::Key_2, Qt::AltModifier);
    Cells({"maris otter", "9 lb", "c40", "8 oz", "wheat malt"});
    Words("1 lb");
    Command(Qt::Key_4, Qt::AltModifier);
    Cells({"magnum", "1/2 oz", "60", "ekg", "1 oz", "15", "cascade", "1 oz"});
    Words("5");
    Command(Qt::Key_1, Qt::AltModifier);
    outside.dialogs.scripts.emplace_back([this](DialogModel& dialog) {
        auto& picker = dynamic_cast<CataloguePickerModel&>(dialog);
        keys_ += 4;
        picker.Items().SetFilter("us05");
        EXPECT_EQ(picker.Items().SelectedText(), "Fermentis SafAle US-05");
        ++keys_;
        ++commands_;
        picker.Press("cmdOK");
    });
    ++keys_;
    ++commands_;  // Alt+Y
    Find<QPushButton>("cmdYeast").click();
    outside.dialogs.scripts.emplace_back([this](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "frmOpenSave");
        ++keys_;
        ++commands_;
        dialog.Press("cmdOK");
    });
    Menu(CommandId::FileSave);

    EXPECT_TRUE(outside.messages.log.empty());
    EXPECT_EQ(shell.Documents().Active()->OrigName(), "Pale");
    EXPECT_FALSE(shell.Documents().Active()->Changed());
    EXPECT_EQ(R().cmbStyle.Text(), "American Pale Ale");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Name), "Maris Otter Pale Malt");
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Name), "Caramel/Crystal Malt 40L");
    EXPECT_EQ(R().gridGrain.Text(3, GrainCol::Name), "Wheat Malt (German)");
    EXPECT_EQ(R().gridHops.Text(2, HopCol::Variety), "East Kent Goldings");
    for (const FieldId field : {FieldId::OG, FieldId::FG, FieldId::ABV, FieldId::Color, FieldId::IBU}) {
        const FigureRule& rule = RuleOfFigure(field);
        const auto range = RangeOfLabel((R().*rule.range).Text());
        const auto figure = FigureOf((R().*rule.box).Text());
        ASSERT_TRUE(range && figure) << rule.shortName;
        EXPECT_EQ(PlaceIn(*range, *figure), RangePlace::Within) << rule.shortName << " " << *figure;
        EXPECT_TRUE(shell.Documents().Active()->Missing().ReasonsOf(field).empty());
    }
    RecordProperty("keys", keys_);
    RecordProperty("commands", commands_);
    EXPECT_LE(keys_, 110);
    EXPECT_LE(commands_, 30);
}

}  // namespace
}  // namespace tw::test
