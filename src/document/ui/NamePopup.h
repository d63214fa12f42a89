// The list below a line edit that shows the names fitting what is being typed. The line edit keeps the focus
// and passes its keys on.
#pragma once

#include <QListView>
#include <functional>
#include <vector>

#include "values/NameMatch.h"

class QKeyEvent;
class QLineEdit;

namespace tw {

class NamePopup final : public QListView {
    Q_OBJECT
  public:
    // edit owns the popup. names is called at the first letter typed after Forget, and its list searched at
    // every letter.
    NamePopup(QLineEdit& edit, std::function<NameList()> names);
    ~NamePopup() override;

    // Moves the highlight of the open list. False, without an effect, for any other key or if it is closed.
    bool MoveBy(const QKeyEvent& key);
    // Enters the highlighted name, if there is one, into the line edit, and closes the list. False if the
    // list is not open.
    bool Take();
    // Closes the list; the text stays as typed. False if the list is not open.
    bool Close();
    // Closes the list and drops the names.
    void Forget();
    // The name that the text can only mean (OnlyMeant), by its number; -1 if there is none.
    int Meant();

  signals:
    // The brewer has clicked a name, which is now the text of the line edit. owner is the line edit, or the
    // combo box that contains it.
    void Taken(QWidget* owner);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    class Matches;
    class Painter;

    const NameList& Names();
    void Show(const QString& typed);
    void Place();

    QLineEdit& edit_;
    QWidget& owner_;  // has the focus while the brewer types: edit_, or the combo box that contains it
    std::function<NameList()> readNames_;
    NameList names_;
    bool hasNames_ = false;
    Matches* matches_;
};

}  // namespace tw
