// The options dialog (frmOptions): three tabs that show an OptionsModel and pass on what the brewer does.
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
    // Both must outlive the dialog.
    OptionsDialog(OptionsModel& model, ColorChooser& colors, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // The pages (OptionsPages.cpp).
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
    // Everything shows what the model holds.
    void ShowModel();
    // How the grids paint their calculated cells, or else their totals, with the colours of the dialog.
    CellColors ShownColors(bool calculated) const;
    static void ShowSample(QLabel& sample, const CellColors& shown);
    void FieldLeft();
    // The focus goes back to a refused field, once the event that took it away is over.
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
    bool refusing_ = false;  // the focus is on its way back; its moves until then are no entry
};

}  // namespace tw
