#include <gmock/gmock.h>

#include "DocumentTest.h"

namespace tw::test {
namespace {

class RowsTest : public DocumentTest {
  protected:
    RowsTest() {
        host.defaults.hopForm = 1;
        host.defaults.hopSocks = true;
        New();
    }
    static std::string Names(const Grid& grid) {
        std::string names;
        for (int row = 1; row < grid.Rows(); ++row) names += grid.Text(row, 0) + "|";
        return names;
    }
};

TEST_F(RowsTest, ARowGoesInAtTheCurrentOne) {
    Grid& grain = R().gridGrain;
    Put(grain, 1, 0, "a");
    document->Focus().SetCurrentCell(grain, 1, 2);
    document->Lines().InsertRowForGrid(grain);
    EXPECT_EQ(Names(grain), "|a|Total|");
    EXPECT_EQ(grain.CurrentRow(), 1);
    EXPECT_EQ(grain.CurrentCol(), 2);
    document->Focus().SetCurrentCell(grain, 3, 0);  // the totals row stays last
    document->Lines().InsertRowForGrid(grain);
    EXPECT_EQ(Names(grain), "|a||Total|");
    EXPECT_TRUE(grain.IsReadOnlyRow(4));
    EXPECT_FALSE(grain.IsReadOnlyRow(3));
}

TEST_F(RowsTest, AppendingGoesBehindTheLastDataRow) {
    host.appendRows = true;
    Grid& priming = R().gridPriming;
    Put(priming, 1, 0, "a");
    document->Focus().SetCurrentCell(priming, 1, 0);
    document->Lines().InsertRowForGrid(priming);
    EXPECT_EQ(Names(priming), "a||Residual|Total|");
    EXPECT_EQ(priming.CurrentRow(), 2);
    document->Lines().InsertRowForGrid(R().gridLog);
    EXPECT_EQ(R().gridLog.DataRows(), 1);
}

TEST_F(RowsTest, OnlyHopRowsHaveDefaults) {
    Grid& hops = R().gridHops;
    EXPECT_EQ(hops.Text(1, HopCol::Form), "Plug");
    document->Lines().InsertRowForGrid(hops);
    EXPECT_EQ(hops.Text(1, HopCol::Form), "Plug");
    EXPECT_EQ(hops.Number(1, HopCol::Form), 1);
    EXPECT_TRUE(hops.Checked(1, HopCol::Sock));
    EXPECT_FALSE(hops.Checked(1, HopCol::DryHopped));
    host.defaults.hopSocks = false;
    document->Lines().InsertRowForGrid(hops);
    EXPECT_FALSE(hops.Checked(1, HopCol::Sock));
    for (Grid* grid :
         {&R().gridGrain, &R().gridTreatment, &R().gridAdjuncts, &R().gridLog, &R().gridPriming}) {
        document->Lines().InsertRowForGrid(*grid);
        for (int col = 0; col < grid->Cols(); ++col) EXPECT_EQ(grid->Text(1, col), "") << grid->Name();
    }
}

TEST_F(RowsTest, ARowChangesTheDocument) {
    document->Lines().InsertRowForGrid(R().gridLog);
    EXPECT_TRUE(document->Changed());
    EXPECT_TRUE(host.IsOn("EnableSave"));
    SaveAs("A");
    document->Lines().DeleteRowForGrid(R().gridLog);
    EXPECT_TRUE(document->Changed());
}

TEST_F(RowsTest, OneDataRowStaysWhereItMust) {
    for (Grid* grid : {&R().gridGrain, &R().gridExtract, &R().gridHops, &R().gridPriming}) {
        document->Focus().SetCurrentCell(*grid, 1, 0);
        EXPECT_FALSE(document->Focus().CanDeleteRow(*grid));
        document->Lines().DeleteRowForGrid(*grid);
        EXPECT_EQ(grid->DataRows(), 1) << grid->Name();
    }
    for (Grid* grid : {&R().gridTreatment, &R().gridAdjuncts, &R().gridLog}) {
        EXPECT_FALSE(document->Focus().CanDeleteRow(*grid));
        document->Lines().InsertRowForGrid(*grid);
        EXPECT_TRUE(document->Focus().CanDeleteRow(*grid));
        document->Lines().DeleteRowForGrid(*grid);
        EXPECT_EQ(grid->DataRows(), 0) << grid->Name();
        document->Lines().DeleteRowForGrid(*grid);
        document->Lines().InsertRowForGrid(*grid);
        EXPECT_EQ(grid->DataRows(), 1) << grid->Name();
    }
}

TEST_F(RowsTest, FixedGridsTakeNoRows) {
    for (Grid* grid : {&R().gridWater, &R().gridPressure}) {
        const int rows = grid->Rows();
        document->Focus().SetCurrentCell(*grid, 1, 0);
        document->Lines().InsertRowForGrid(*grid);
        document->Lines().DeleteRowForGrid(*grid);
        EXPECT_EQ(grid->Rows(), rows) << grid->Name();
        EXPECT_FALSE(document->Focus().CanInsertRow(*grid) || document->Focus().CanDeleteRow(*grid));
    }
    EXPECT_FALSE(document->Changed());
}

TEST_F(RowsTest, DeletingRecomputesTheFigures) {
    Set(R().txtExtract, "50");
    Set(R().txtBoilVol, "5");
    Set(R().txtTotalVol, "5");
    Grid& grain = R().gridGrain;
    host.appendRows = true;
    document->Lines().InsertRowForGrid(grain);
    for (int row : {1, 2}) {
        Put(grain, row, GrainCol::Amount, "10");
        Put(grain, row, GrainCol::Ppg, "30");
        Put(grain, row, GrainCol::Color, row == 1 ? "2" : "4");
    }
    EXPECT_EQ(R().txtOG.Text(), "1.060");
    document->Focus().SetCurrentCell(grain, 1, 0);
    document->Lines().DeleteRowForGrid(grain);
    EXPECT_EQ(grain.Text(2, 0), "Total");
    EXPECT_EQ(grain.Text(2, GrainCol::Amount), "10 lbs.");
    EXPECT_EQ(grain.Text(2, GrainCol::Points), "30");
    EXPECT_EQ(grain.Text(2, GrainCol::Hcu), "8");
    EXPECT_EQ(R().txtOG.Text(), "1.030");

    document->Lines().InsertRowForGrid(R().gridHops);
    Put(R().gridHops, 1, HopCol::Amount, "20 IBU");
    Put(R().gridHops, 2, HopCol::Amount, "15 IBU");
    document->Focus().SetCurrentCell(R().gridHops, 2, 0);
    document->Lines().DeleteRowForGrid(R().gridHops);
    EXPECT_EQ(R().txtIBU.Text(), "20");

    Set(R().txtTemp, "68");
    document->Lines().InsertRowForGrid(R().gridPriming);
    for (int row : {1, 2}) {
        Put(R().gridPriming, row, PrimingCol::Fermentable, "100");
        Put(R().gridPriming, row, PrimingCol::Amount, "4");
    }
    document->Lines().DeleteRowForGrid(R().gridPriming);
    EXPECT_EQ(R().txtCO2.Text(), "2.49 volumes");

    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, 0, "Gypsum");
    Put(R().gridTreatment, 1, 1, "5");
    EXPECT_EQ(R().gridWater.Text(5, 2), "61.5");
    document->Lines().DeleteRowForGrid(R().gridTreatment);
    EXPECT_EQ(R().gridWater.Text(5, 2), "0");
}

TEST_F(RowsTest, TheTabTellsWhichGridAndWhichCommands) {
    struct Case {
        Tab tab;
        Grid* grid;
        bool insert;
    };
    RecipeRecord& r = R();
    for (const Case& c :
         {Case{Tab::General, nullptr, false}, Case{Tab::Grains, &r.gridGrain, true},
          Case{Tab::Extracts, &r.gridExtract, true}, Case{Tab::Hops, &r.gridHops, true},
          Case{Tab::Water, &r.gridTreatment, true}, Case{Tab::Carbonation, &r.gridPriming, true},
          Case{Tab::Adjuncts, &r.gridAdjuncts, true}, Case{Tab::Log, &r.gridLog, true},
          Case{Tab::Notes, nullptr, false}}) {
        document->Focus().SetTab(c.tab);
        EXPECT_EQ(document->Focus().GridOfTab(c.tab), c.grid);
        EXPECT_EQ(host.IsOn("EnableInsert"), c.insert);
        EXPECT_FALSE(host.IsOn("EnableDelete"));
        const int rows = c.grid ? c.grid->DataRows() : 0;
        document->Lines().InsertRow();
        if (!c.grid) continue;
        EXPECT_EQ(c.grid->DataRows(), rows + 1);
        EXPECT_TRUE(host.IsOn("EnableDelete")) << c.grid->Name();
        document->Lines().DeleteRow();
        EXPECT_EQ(c.grid->DataRows(), rows);
        EXPECT_FALSE(host.IsOn("EnableDelete")) << c.grid->Name();
    }
}

TEST_F(RowsTest, OnATotalsRowDeleteIsOff) {
    document->Focus().SetTab(Tab::Grains);
    document->Lines().InsertRow();
    EXPECT_TRUE(host.IsOn("EnableDelete"));
    document->Focus().SetCurrentCell(R().gridGrain, 3, 0);
    EXPECT_FALSE(host.IsOn("EnableDelete"));
    document->Lines().DeleteRow();
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    document->Focus().SetCurrentCell(R().gridGrain, 2, 0);
    EXPECT_TRUE(host.IsOn("EnableDelete"));
}

TEST_F(RowsTest, AKegHasNoSugarRows) {
    document->Focus().SetTab(Tab::Carbonation);
    EXPECT_TRUE(host.IsOn("EnableInsert"));
    document->Options().Choose("optKeg");
    EXPECT_FALSE(host.IsOn("EnableInsert"));
    EXPECT_FALSE(host.IsOn("EnableDelete"));
    document->Lines().InsertRow();
    EXPECT_EQ(R().gridPriming.DataRows(), 1);
}

TEST_F(RowsTest, TheCommandsFlushTheOpenEditorFirst) {
    struct View : DocumentView {
        bool FlushEditors() override {
            ++flushes;
            return true;
        }
        int flushes = 0;
    } view;
    document->SetView(&view);
    document->Focus().SetTab(Tab::Grains);
    document->Lines().InsertRow();
    document->Lines().DeleteRow();
    EXPECT_EQ(view.flushes, 3);
    document->SetView(nullptr);
}

}  // namespace
}  // namespace tw::test
