// The options dialog (frmOptions): three tabs that show an OptionsModel and pass the brewer's actions to it.
#pragma once

#include <QDialog>
#include <QHash>

#include "platform/qt/CellColors.h"
#include "platform/qt/ColorChooser.h"
#include "shell/OptionsModel.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTabWidget;

namespace tw {

class ColorButton;
class UpDown;

class OptionsDialog final : public QDialog {
    Q_OBJECT
  public:
    // model and colors must outlive the dialog.
    OptionsDialog(OptionsModel& model, ColorChooser& colors, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // The pages are in OptionsPages.cpp.
    QWidget* AddPage(const QString& caption);
    void BuildDefaultsPage();
    void BuildSettingsPage();
    void BuildAppearancePage();
    QWidget* AutoSaveRow(QWidget* page);
    void AddIconChoices(QWidget* page, QBoxLayout& column);
    void AddButtonChoices(QWidget* page, QBoxLayout& column);
    QWidget* ColorGroup(QWidget* page);
    void AddRow(QGridLayout& rows, const QString& caption, QWidget* control);
    QComboBox* List(const char* name, const QString& caption, QWidget* page);
    QLineEdit* Field(const char* name, const QString& caption, int digits, QWidget* page);
    QCheckBox* Check(const char* name, const QString& caption, QWidget* page);
    void AddOption(const QString& name, const QString& caption, QWidget* page, QBoxLayout& row);
    ColorButton* Picture(const char* name, const QString& caption, QWidget* page);
    QLabel* Sample(const char* name, const QString& caption, QWidget* page);
    QPushButton* DialogButton(const char* name, const QString& caption);

    void Press(const char* button);
    void Enter(const QString& control, const QString& text);
    void ChooseColor(const QString& picture);
    // Shows the present state of the model.
    void ShowModel();
    // Returns the colours of calculated cells of the grids, or else of totals, as chosen in the dialog.
    CellColors ShownColors(bool calculated) const;
    static void ShowSample(QLabel& sample, const CellColors& shown);
    void FieldLeft();
    // Returns the focus to a refused field after the event that moved it away has been processed.
    void GoBackTo(const QString& field);

    OptionsModel& model_;
    ColorChooser& colors_;
    QTabWidget* tabs_;
    QHash<QString, QLineEdit*> fields_;
    QLabel *every_ = nullptr, *minutes_ = nullptr;
    UpDown* upDown_ = nullptr;
    QWidget* colorGroup_ = nullptr;
    QLabel *calcSample_ = nullptr, *sumSample_ = nullptr;
    QMenu* colorMenu_ = nullptr;
    bool refusing_ = false;  // true while the focus returns to a field; its changes are then ignored
};

}  // namespace tw
