// The window of a catalogue editor. One class builds the windows of all editors from the tables of
// their forms.
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
    // Returns a caption with an access key that no other control of the form has yet, if a letter is left.
    QString Caption(std::string_view text);
    void AddRow(QGridLayout& rows, std::string_view caption, QWidget* control);
    QLineEdit* Box(const char* name, int digits);
    QComboBox* ListBox(const char* name);
    QLineEdit* CellBox(int row, int col);
    QLineEdit* CellAt(int row, int col) const;
    // Returns the text to show in a cell: a stored gravity with three decimals, unless that would
    // lose digits.
    QString ShownIn(int row, int col) const;

    // Gives read-only boxes the background of the window.
    void LookReadOnly();
    void ShowModel();
    void ShowTexts();
    void ShowList(QComboBox& box, const EditorList& list);
    // Updates what depends on the entries: buttons, colour, hint.
    void ShowState();
    void Enter(const char* control, const QString& text);
    void Press(const char* button);
    // False if the model has refused the text of the cell and shown a message.
    bool LeaveCell(int row, int col);
    // Returns the focus to a refused cell, after the event that moved it away has been processed.
    void GoBackTo(QLineEdit& cell);

    CatalogueEditor& model_;
    ColorTable colors_;
    QString taken_;  // the letters in use as access keys
    std::vector<QLineEdit*> cells_;
    QPlainTextEdit* description_ = nullptr;
    ColorSwatch* swatch_ = nullptr;
    QLabel* hint_ = nullptr;
    FolderChooserView* folders_ = nullptr;
    ObjectNavigatorView* steps_ = nullptr;
    QPushButton* apply_ = nullptr;
    bool showing_ = false;   // the texts change because the model is being shown, not by typing
    bool refusing_ = false;  // the focus is being returned; meanwhile, its moves leave no cell
};

}  // namespace tw
