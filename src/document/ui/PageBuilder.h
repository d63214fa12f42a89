// Makes the controls of a document's tabs, each tied to its object of the record and named for assistive
// programs.
#pragma once

#include <QWidget>

#include "document/ui/DocumentBinding.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace tw {

class FieldBox;
class GridPanel;
class RangeBar;

class PageBuilder {
  public:
    // The document must be there.
    PageBuilder(DocumentBinding& binding, QWidget& page)
        : binding_(binding), record_(binding.Document()->Record()), page_(page) {}

    DocumentBinding& Binding() const { return binding_; }
    RecipeRecord& Record() const { return record_; }
    QWidget& Page() const { return page_; }

    // A label right before its control, whose buddy it is; "&" marks the mnemonic.
    QLabel* LabelFor(const QString& caption, QWidget* buddy);
    // The field's caption beside it.
    QLabel* LabelFor(FieldBox* field);
    static QString CaptionOf(const TextBox& box);
    // caption: the text of the box's label. digits: the usual width, 0 for as wide as there is room.
    FieldBox* Field(TextBox& box, int digits);
    // A computed or typed figure in the larger face.
    FieldBox* Figure(TextBox& box, int digits);
    // A label of the record, such as a style's range.
    QLabel* RecordLabel(const Label& label, const QString& name);
    // The bar that belongs to a figure and its range.
    RangeBar* Bar(const TextBox& figure, const Label& range, const QString& what);
    QPushButton* CommandButton(const Button& button, const QString& caption, const QString& name,
                               std::function<void(RecipeDocument&)> action);
    QComboBox* StyleList(const QString& name);
    // An option button of that control name.
    QRadioButton* Option(const OptionGroup& group, const QString& option, const QString& caption);
    GridPanel* GridOf(Grid& grid, const QString& hint);

  private:
    DocumentBinding& binding_;
    RecipeRecord& record_;
    QWidget& page_;
};

// "&Beer Name:" as "Beer Name".
QString PlainCaption(QString caption);

}  // namespace tw
