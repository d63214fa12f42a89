// The window of the assistant (frmAssistant).
#pragma once

#include <QDialog>
#include <vector>

#include "help/AssistantModel.h"

class QBoxLayout;

namespace tw {

class AssistantLinkButton;

class AssistantDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    AssistantDialog(AssistantModel& model, QWidget* parent);
    ~AssistantDialog() override;

  protected:
    void reject() override;

  private:
    void AddLinks(QBoxLayout& column);
    void AddButtons(QBoxLayout& column);
    void Press(std::string_view button);
    // Highlights only that link.
    void Highlight(const AssistantLinkButton& link);
    // Highlights the link under the pointer, else the one with the focus, else none.
    void HighlightWhatIsLeft();

    AssistantModel& model_;
    std::vector<AssistantLinkButton*> links_;
};

}  // namespace tw
