// Creates the controls of a document's tabs. Each is bound to its object of the record and named for
// screen readers.
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
class GapMark;
class RangeBar;

class PageBuilder {
  public:
    // Adds the controls to page. binding must outlive them. REQUIRES: binding.Document() is not nullptr.
    PageBuilder(DocumentBinding& binding, QWidget& page)
        : binding_(binding), record_(binding.Document()->Record()), page_(page) {}

    DocumentBinding& Binding() const { return binding_; }
    RecipeRecord& Record() const { return record_; }
    QWidget& Page() const { return page_; }

    // Creates a label for the control after it, its buddy; "&" marks the access key.
    QLabel* LabelFor(const QString& caption, QWidget* buddy);
    // Creates the label with the caption of a field.
    QLabel* LabelFor(FieldBox* field);
    static QString CaptionOf(const TextBox& box);
    // Creates the box of a field. digits: its width in digits; 0 for the full available width.
    FieldBox* Field(TextBox& box, int digits);
    // As Field, in the larger font of figures.
    FieldBox* Figure(TextBox& box, int digits);
    // Creates a widget that shows a label of the record, such as a style's range. name: the accessible name.
    QLabel* RecordLabel(const Label& label, const QString& name);
    // Creates the bar for a figure and its range. what: the name of the figure.
    RangeBar* Bar(const TextBox& figure, const Label& range, const QString& what);
    // Creates the mark for what a figure lacks. what: the name of the figure.
    GapMark* Gaps(FieldId figure, const QString& what);
    QPushButton* CommandButton(const Button& button, const QString& caption, const QString& name,
                               std::function<void(RecipeDocument&)> action);
    QComboBox* StyleList(const QString& name);
    // Creates the option button with that control name.
    QRadioButton* Option(const OptionGroup& group, const QString& option, const QString& caption);
    GridPanel* GridOf(Grid& grid, const QString& hint);

  private:
    DocumentBinding& binding_;
    RecipeRecord& record_;
    QWidget& page_;
};

// Returns a caption without access key and colon: "Beer Name" for "&Beer Name:".
QString PlainCaption(QString caption);

}  // namespace tw
