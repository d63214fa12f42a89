// The window of an editor of the catalogue: one builder for all of them, from the tables of their forms.
#pragma once

#include <QDialog>
#include <vector>

#include "calc/BeerColor.h"
#include "catalogue/CatalogueEditor.h"

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tw {

class ColorSwatch;
class FolderChooserView;
class ObjectNavigatorView;

class EditorDialog final : public QDialog {
    Q_OBJECT
  public:
    EditorDialog(CatalogueEditor& model, QWidget* parent);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void reject() override;
    void changeEvent(QEvent* event) override;

  private:
    void AddHead(QBoxLayout& column);
    void AddRanges(QBoxLayout& column);
    void AddFolders(QBoxLayout& row);
    void AddDescription(QBoxLayout& column);
    void AddButtons(QBoxLayout& column);
    // A caption with a mnemonic that no other control of the form has yet.
    QString Caption(std::string_view text);
    void AddRow(QGridLayout& rows, std::string_view caption, QWidget* control);
    QLineEdit* Box(const char* name, int digits);
    QComboBox* ListBox(const char* name);
    QLineEdit* CellBox(int row, int col);
    QLineEdit* CellAt(int row, int col) const;
    // A stored gravity shows three decimals where those are all of it.
    QString ShownIn(int row, int col) const;

    // Boxes that are only read have the ground of the window.
    void LookReadOnly();
    void ShowModel();
    void ShowTexts();
    void ShowList(QComboBox& box, const EditorList& list);
    // What follows from the entries: buttons, colour, hint.
    void ShowState();
    void Enter(const char* control, const QString& text);
    void Press(const char* button);
    // False when the model refuses the cell's text, which has been told.
    bool LeaveCell(int row, int col);
    // The focus goes back to a refused cell, once the event that took it away is over.
    void GoBackTo(QLineEdit& cell);

    CatalogueEditor& model_;
    ColorTable colors_;
    QString taken_;  // the letters of the mnemonics
    std::vector<QLineEdit*> cells_;
    QPlainTextEdit* description_ = nullptr;
    ColorSwatch* swatch_ = nullptr;
    QLabel* hint_ = nullptr;
    FolderChooserView* folders_ = nullptr;
    ObjectNavigatorView* steps_ = nullptr;
    QPushButton* apply_ = nullptr;
    bool showing_ = false;   // the texts come from the model, not from the keyboard
    bool refusing_ = false;  // the focus is on its way back; its moves until then are no entry
};

}  // namespace tw
