#include "app/PrintedMessages.h"

#include <iostream>

namespace tw {

void PrintedMessages::ShowMessage(std::string_view title, std::string_view text) {
    std::cerr << "tunwright: " << title << ": " << text << '\n';
}

Answer PrintedMessages::Ask(std::string_view title, std::string_view text, Question kind) {
    ShowMessage(title, text);
    return ClosingAnswer(kind);
}

}  // namespace tw
