// The area of the main window that contains the recipe windows. While none is open, it says how to start.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

namespace tw {

class RecipeWindow;

class DocumentArea final : public QMdiArea {
    Q_OBJECT
  public:
    explicit DocumentArea(QWidget* parent);
    // Sets the text shown in the middle while no recipe is open.
    void SetWelcome(const QString& line);
    // Arranges the windows overlapping each other, each placed a step further in than the one below it.
    void Cascade();
    // Gives a window its usual size, place steps away from the upper left corner, with its whole
    // frame visible.
    void PlaceAt(QMdiSubWindow& window, int place);
    // Arranges the windows below each other, each as wide as the area; tileSubWindows would make columns.
    void TileHorizontally();
    // Arranges the windows side by side, each as high as the area.
    void TileVertically();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // Returns the windows that are visible and not minimised.
    QList<QMdiSubWindow*> Shown(WindowOrder order) const;
    void Tile(Qt::Orientation stacked);
    QString welcome_;
};

// The frame of one recipe. It does not close itself but emits CloseRequested, and the shell closes
// the recipe.
class DocumentSubWindow final : public QMdiSubWindow {
    Q_OBJECT
  public:
    DocumentSubWindow(RecipeWindow* document, QWidget* parent);
    RecipeWindow& Document() const { return *document_; }
    // Shows the caption in the title, with the desktop's mark for unsaved documents if it is modified.
    void ShowCaption(const QString& caption, bool modified);
    // Returns the caption with that mark, as a menu shows it.
    QString MarkedCaption() const;
    // Returns the caption as a screen reader says it.
    QString SpokenCaption() const;

  signals:
    void CloseRequested();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    RecipeWindow* document_;
    QString caption_;
};

}  // namespace tw
