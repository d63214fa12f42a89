// The main window with a database in memory that contains a few catalogue entries, and a recording platform.
#pragma once

#include <QtTest/QTest>
#include <QtWidgets>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "document/ui/GridView.h"
#include "document/ui/RecipeWindow.h"
#include "platform/qt/QtText.h"
#include "shell/Shell.h"
#include "shell/ui/MainWindow.h"
#include "support/RecordingPlatform.h"

namespace tw::test {

class GuiTest : public testing::Test {
  protected:
    void SetUp() override {
        window.resize(1100, 720);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(window.StartUp(":memory:"));
        for (const char* sql :
             {"INSERT INTO STYLES (NAME, OG_LO, OG_HI, IBU_LO) VALUES ('Stout', 1.02, 1.03, 25)",
              "INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI, GRAIN) VALUES "
              "('Pale Malt', 36, 36, 2, 2, TRUE)"})
            shell.DB()->Execute(sql);
    }

    // Opens a new recipe, which becomes active.
    RecipeWindow& NewRecipe() {
        EXPECT_TRUE(window.RunCommand(CommandId::FileNew));
        return *window.ActiveWindow();
    }
    // Shows every tab once, so that all its controls are created.
    void BuildAllTabs() {
        for (int tab = 0; tab < kTabs; ++tab) window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
    }
    template <class Control>
    Control& Find(const char* name) {
        auto* control = window.ActiveWindow()->findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    // Shows the tab of a grid and moves the focus to a cell of the grid.
    GridView& GridAt(Tab tab, const char* name, int row, int col) {
        window.ActiveWindow()->ShowTab(tab);
        auto& view = Find<GridView>(name);
        view.setFocus();
        view.setCurrentIndex(view.Model().index(row - 1, col));
        return view;
    }
    std::string Text(const char* name) { return FromQt(Find<QLineEdit>(name).text()); }
    std::string Shown(GridView& view, int row, int col) {
        return FromQt(view.Model().index(row - 1, col).data(Qt::DisplayRole).toString());
    }

    // Keys go to the widget with the focus, as from a keyboard.
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void Type(const char* text) {
        for (; *text; ++text) {
            ASSERT_NE(QApplication::focusWidget(), nullptr);
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
    static std::string Focus() {
        QWidget* focus = QApplication::focusWidget();
        return focus ? FromQt(focus->objectName()) : std::string();
    }

    RecordingPlatform outside;
    Shell shell{{outside.platform}};
    MainWindow window{shell, outside.platform};
};

using Strings = std::vector<std::string>;

}  // namespace tw::test
