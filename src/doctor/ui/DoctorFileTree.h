// The list of the files of an import with their recipes: whether each is imported, its worst finding, and its
// figures (treeRecipes).
#pragma once

#include <QTreeWidget>

#include "doctor/ImportDoctorModel.h"

namespace tw {

class DoctorFileTree final : public QTreeWidget {
    Q_OBJECT
  public:
    // The model must outlive the widget.
    DoctorFileTree(ImportDoctorModel& model, QWidget* parent);

    // Shows the model's present files, choices and selection.
    void ShowFiles();

  signals:
    // The brewer has selected another item, or chosen what to import.
    void Changed();

  protected:
    // Says what to do while the list is empty.
    void paintEvent(QPaintEvent* event) override;

  private:
    void MakeItems();
    void ShowItem(QTreeWidgetItem& item) const;
    // Returns the item of the list that shows that item of the model; nullptr if there is none.
    QTreeWidgetItem* Find(const DoctorItem& wanted) const;
    void Take(const QTreeWidgetItem& item);

    ImportDoctorModel& model_;
    bool filling_ = false;
};

}  // namespace tw
