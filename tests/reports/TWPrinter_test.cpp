#include "reports/TWPrinter.h"

#include <functional>
#include <gtest/gtest.h>
#include <tuple>

#include "platform/Error.h"
#include "reports/PaperLog.h"

namespace tw::test {
namespace {

class TWPrinterTest : public testing::Test {
  protected:
    void Begin(const std::string& failing = {}) {
        printer.BeginDoc(std::make_unique<PaperLog>(log, failing), "Porter");
        log.clear();
    }
    Strings TakeLog() { return std::exchange(log, {}); }

    Strings log;
    TWPrinter printer;
};

TEST_F(TWPrinterTest, StartsADocumentOnItsFirstPageInBlack) {
    const PrintSize page = printer.BeginDoc(std::make_unique<PaperLog>(log), "Porter");
    EXPECT_EQ(log, (Strings{"StartDoc Porter", "StartPage", "SetTextColor 0,0,0"}));
    EXPECT_EQ(page, kLetterPaper);
}

TEST_F(TWPrinterTest, TheFirstFontIsTheStartFont) {
    Begin();
    printer.TextOut("x", 1, 1);
    EXPECT_EQ(log, (Strings{"CreateFont Times New Roman 12", "TextOut x"}));
}

TEST_F(TWPrinterTest, ManyChangesOfTheFontMakeOne) {
    Begin();
    printer.FontSize(10);
    printer.FontBold(true);
    printer.FontItalic(true);
    printer.FontFamily("Arial");
    EXPECT_TRUE(log.empty());
    printer.GetTextSize("x");
    printer.TextOut("x", 1, 1);
    EXPECT_EQ(log, (Strings{"CreateFont Arial 10 bold italic", "GetTextExtentPoint32", "TextOut x"}));
}

TEST_F(TWPrinterTest, SettingTheSameAttributesMakesNoNewFont) {
    Begin();
    printer.FontSize(10);
    printer.GetTextSize("x");
    log.clear();
    printer.FontSize(10);
    printer.FontBold(false);
    printer.FontItalic(false);
    printer.FontFamily("Times New Roman");
    printer.GetTextSize("x");
    EXPECT_EQ(log, (Strings{"GetTextExtentPoint32"}));
}

TEST_F(TWPrinterTest, TheColorInUseTouchesNothing) {
    Begin();
    printer.Color({0, 0, 0});
    EXPECT_TRUE(log.empty());
    printer.Color({1, 2, 3});
    EXPECT_EQ(TakeLog(), (Strings{"SetTextColor 1,2,3", "CreateSolidBrush 1,2,3", "CreatePen 1,2,3"}));
    printer.Color({1, 2, 3});
    EXPECT_TRUE(log.empty());
}

TEST_F(TWPrinterTest, ABoxLeavesTheColorAsItWas) {
    Begin();
    printer.Box(0, 0, 1, 1, {9, 9, 9});
    EXPECT_EQ(log, (Strings{"SetTextColor 9,9,9", "CreateSolidBrush 9,9,9", "CreatePen 9,9,9", "Rectangle",
                            "SetTextColor 0,0,0", "CreateSolidBrush 0,0,0", "CreatePen 0,0,0"}));
}

TEST_F(TWPrinterTest, ANewPageTakesTheObjectsInUseAgain) {
    Begin();
    printer.NewPage();
    EXPECT_EQ(TakeLog(), (Strings{"EndPage", "StartPage", "MoveToEx"}));
    printer.GetTextSize("x");
    log.clear();
    printer.NewPage();
    EXPECT_EQ(TakeLog(), (Strings{"EndPage", "StartPage", "SelectObject", "MoveToEx"}));
    printer.Color({7, 7, 7});
    log.clear();
    printer.NewPage();
    EXPECT_EQ(log, (Strings{"EndPage", "StartPage", "SelectObject", "SetTextColor 0,0,0",
                            "CreateSolidBrush 0,0,0", "CreatePen 0,0,0", "SetTextColor 7,7,7",
                            "CreateSolidBrush 7,7,7", "CreatePen 7,7,7", "MoveToEx"}));
}

TEST_F(TWPrinterTest, ASecondDocumentClosesTheFirstDeviceBeforeItStarts) {
    Begin();
    printer.FontSize(30);
    printer.Color({7, 7, 7});
    log.clear();
    printer.BeginDoc(std::make_unique<PaperLog>(log), "Stout");
    EXPECT_EQ(TakeLog(), (Strings{"DeleteDC", "gone", "StartDoc Stout", "StartPage", "SetTextColor 0,0,0"}));
    EXPECT_EQ(printer.Font(), PrintFont());
    printer.Color({0, 0, 0});
    EXPECT_TRUE(log.empty());
}

TEST_F(TWPrinterTest, GivesTheDeviceBackWithTheObject) {
    {
        TWPrinter other;
        other.BeginDoc(std::make_unique<PaperLog>(log, "DeleteDC"), "Porter");
        log.clear();
    }
    EXPECT_EQ(log, (Strings{"DeleteDC", "gone"}));
}

TEST_F(TWPrinterTest, EveryFailureIsAnErrorWithTheNameOfTheCall) {
    const std::vector<std::pair<std::string, std::function<void(TWPrinter&)>>> calls = {
        {"EndPage", [](TWPrinter& p) { p.FinishDoc(); }},
        {"EndDoc", [](TWPrinter& p) { p.FinishDoc(); }},
        {"AbortDoc", [](TWPrinter& p) { p.KillDoc(); }},
        {"DeleteDC", [](TWPrinter& p) { p.Close(); }},
        {"CreateSolidBrush",
         [](TWPrinter& p) {
             p.Color({1, 1, 1});
         }},
        {"CreatePen",
         [](TWPrinter& p) {
             p.Color({1, 1, 1});
         }},
        {"CreateFont", [](TWPrinter& p) { p.GetTextSize("x"); }},
        {"GetTextExtentPoint32", [](TWPrinter& p) { p.GetTextSize("x"); }},
        {"TextOut", [](TWPrinter& p) { p.TextOut("x", 0, 0); }},
        {"MoveToEx", [](TWPrinter& p) { p.MoveTo(0, 0); }},
        {"LineTo", [](TWPrinter& p) { p.LineTo(0, 0); }},
        {"Rectangle",
         [](TWPrinter& p) {
             p.Box(0, 0, 1, 1, {0, 0, 0});
         }},
        {"SelectObject", [](TWPrinter& p) {
             p.GetTextSize("x");
             p.NewPage();
         }}};
    for (const auto& [call, run] : calls) {
        TWPrinter failing;
        failing.BeginDoc(std::make_unique<PaperLog>(log, call), "Porter");
        try {
            run(failing);
            ADD_FAILURE() << call;
        } catch (const Error& error) {
            EXPECT_EQ(error.Source(), "TWPrinter");
            EXPECT_EQ(error.WithNumber(), "Printer Error Occurred (" + call + ") (5)");
        }
    }
}

TEST_F(TWPrinterTest, AFailureAtTheStartIsAnErrorToo) {
    for (const char* call : {"StartDoc", "StartPage", "SetTextColor"}) {
        TWPrinter failing;
        EXPECT_THROW(failing.BeginDoc(std::make_unique<PaperLog>(log, call), "Porter"), Error) << call;
    }
}

TEST_F(TWPrinterTest, WithoutADeviceADrawingIsAnError) {
    EXPECT_THROW(printer.TextOut("x", 0, 0), Error);
    EXPECT_NO_THROW(printer.Close());
}

TEST_F(TWPrinterTest, AJobThatFailsIsKilledAndTold) {
    TWPrinter failing;
    EXPECT_THROW(RunPrintJob(failing,
                             [&] {
                                 failing.BeginDoc(std::make_unique<PaperLog>(log, "TextOut"), "Porter");
                                 log.clear();
                                 failing.TextOut("x", 0, 0);
                             }),
                 Error);
    EXPECT_EQ(log.back(), "AbortDoc");
}

TEST_F(TWPrinterTest, AJobThatCannotEvenBeKilledTellsItsFirstFailure) {
    TWPrinter failing;
    try {
        RunPrintJob(failing,
                    [&] { failing.BeginDoc(std::make_unique<PaperLog>(log, "StartDoc"), "Porter"); });
        ADD_FAILURE();
    } catch (const Error& error) {
        EXPECT_EQ(error.Description(), "Printer Error Occurred (StartDoc)");
    }
    EXPECT_THROW(RunPrintJob(printer, [] { throw Error("x", "first", 1); }), Error);
}

}  // namespace
}  // namespace tw::test
