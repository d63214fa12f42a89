// Recipes in folders, and what the tests of their windows share: in-place editors, drags, and context menus.
#pragma once

#include "GuiTest.h"
#include "tree/ui/IconPane.h"
#include "tree/ui/KeyDrag.h"
#include "tree/ui/ListPane.h"
#include "tree/ui/NodeListPane.h"
#include "tree/ui/TreePane.h"

namespace tw::test {

class BrowseTest : public GuiTest {
  protected:
    // Folders: F:1 Winter, which contains F:2 Dark; style folder G:3 British. Recipes: 1 Ale and 2 mild at
    // the root, 3 Porter in Winter.
    void SetUp() override {
        GuiTest::SetUp();
        DB_IO& objects = shell.Opened()->data.objects;
        objects.CreateRecipeFolder(0, "Winter", Asking::Quietly);
        objects.CreateRecipeFolder(1, "Dark", Asking::Quietly);
        objects.CreateStyleFolder(0, "British", Asking::Quietly);
        shell.DB()->Execute("UPDATE STYLES SET FOLDER_ID = 0");
        objects.AddStyleNodesByName("Stout");
        for (const char* values : {"'Ale', 0", "'mild', 0", "'Porter', 1"})
            shell.DB()->Execute(std::string("INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID) VALUES (") +
                                values + ", 0)");
        for (const char* name : {"Ale", "mild", "Porter"}) objects.AddRecipeNodesByName(name);
        shell.States().CheckEnableDelete();
    }
    static void Front(QWidget& dialog) {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
    }
    // Returns the texts of a list's first column, from the top.
    static Strings Rows(const QAbstractItemView& view) {
        Strings names;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            names.push_back(FromQt(view.model()->index(row, 0).data().toString()));
        return names;
    }
    static QModelIndex RowOf(const QAbstractItemView& view, const char* name) {
        for (int row = 0; row < view.model()->rowCount(); ++row)
            if (view.model()->index(row, 0).data().toString() == QLatin1String(name))
                return view.model()->index(row, 0);
        ADD_FAILURE() << "no row " << name;
        return {};
    }
    static void Click(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, view.visualRect(index).center());
    }
    static void DoubleClick(QAbstractItemView& view, const QModelIndex& index) {
        Click(view, index);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }
    // Returns the open in-place editor, nullptr if there is none.
    static QLineEdit* Editor(const QAbstractItemView& view) {
        for (auto* editor : view.viewport()->findChildren<QLineEdit*>())
            if (editor->isVisible()) return editor;
        return nullptr;
    }
    // Replaces the text of the open editor by typing and presses Enter.
    static void TypeName(const QAbstractItemView& view, const char* name) {
        QLineEdit* editor = Editor(view);
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        QTest::keyClicks(editor, QLatin1String(name));
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents();
    }
    // Drags the objects over the entry and drops them there. Returns false if the entry refuses them.
    static bool Drop(QAbstractItemView& view, const QModelIndex& index, const KeyDrag::Keys& keys) {
        const std::unique_ptr<QMimeData> data(MimeOfKeys(keys));
        const QPoint place = view.visualRect(index).center();
        QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &enter);
        QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        move.ignore();
        QApplication::sendEvent(view.viewport(), &move);
        QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &drop);
        QApplication::processEvents();
        return move.isAccepted();
    }
    // Returns the menu that a right click on an entry opens.
    static QMenu* MenuAt(QWidget& dialog, QAbstractItemView& view, const QModelIndex& index,
                         const char* name) {
        const QPoint place = view.visualRect(index).center();
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &asked);
        auto* menu = dialog.findChild<QMenu*>(QLatin1String(name));
        EXPECT_NE(menu, nullptr) << name;
        return menu;
    }
    static QAction* Item(const QMenu& menu, const char* name) {
        for (QAction* action : menu.findChildren<QAction*>())
            if (action->objectName() == QLatin1String(name)) return action;
        ADD_FAILURE() << "no item " << name;
        return nullptr;
    }
    static Strings LitItems(const QMenu& menu) {
        Strings lit;
        for (const QAction* action : menu.actions())
            if (action->isEnabled() && !action->isSeparator()) lit.push_back(FromQt(action->objectName()));
        return lit;
    }
    static void Close(QMenu* menu) {
        QWidget* dialog = menu->parentWidget();
        menu->close();
        QApplication::processEvents();
        // As a window manager does.
        QApplication::setActiveWindow(dialog);
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Strings Boxes() { return outside.messages.TakeLog(); }
};

}  // namespace tw::test
