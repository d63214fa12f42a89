// The area of the main window where the recipes lie. While none is open it says how to start.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

namespace tw {

class RecipeWindow;

class DocumentArea final : public QMdiArea {
    Q_OBJECT
  public:
    explicit DocumentArea(QWidget* parent);
    // Shown in the middle while no recipe is open.
    void SetWelcome(const QString& line);
    // Over each other, each a step further in than the one below it.
    void Cascade();
    // Gives a window its usual size, place steps away from the corner, with its whole frame in sight.
    void PlaceAt(QMdiSubWindow& window, int place);
    // Below each other, across the whole width; tileSubWindows would make columns.
    void TileHorizontally();
    // Beside each other, over the whole height.
    void TileVertically();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // The windows that are not minimised.
    QList<QMdiSubWindow*> Shown(WindowOrder order) const;
    void Tile(Qt::Orientation stacked);
    QString welcome_;
};

// The frame of one recipe. It never closes by itself: it asks, and the shell closes the recipe.
class DocumentSubWindow final : public QMdiSubWindow {
    Q_OBJECT
  public:
    DocumentSubWindow(RecipeWindow* document, QWidget* parent);
    RecipeWindow& Document() const { return *document_; }

  signals:
    void CloseRequested();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    RecipeWindow* document_;
};

}  // namespace tw
