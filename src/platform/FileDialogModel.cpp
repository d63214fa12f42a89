#include "platform/FileDialogModel.h"

#include <filesystem>

namespace tw {

void FileDialogModel::Accept(std::string_view fileName) {
    fileName_ = fileName;
    cancelled_ = false;
    open_ = false;
}

std::vector<DialogControl> FileDialogModel::Controls() const {
    return {{"FileName", text_}};
}

bool FileDialogModel::SetControl(std::string_view name, std::string_view text) {
    if (name != "FileName") return false;
    text_ = text;
    return true;
}

bool FileDialogModel::Press(std::string_view button) {
    if (button == "cmdOK") {
        const std::string fileName = WithExtension();
        if (Accepts(fileName)) Accept(fileName);
        return true;
    }
    if (button != "cmdCancel") return false;
    CloseBox();
    return true;
}

std::string FileDialogModel::WithExtension() const {
    const std::filesystem::path path(text_);
    if (path.has_extension() || !path.has_filename()) return text_;
    // A file to open that is there under just that name is meant.
    std::error_code ignored;
    if (options_.kind == Kind::Open && std::filesystem::is_regular_file(path, ignored)) return text_;
    return text_ + "." + options_.extension;
}

bool FileDialogModel::Accepts(const std::string& fileName) {
    if (text_.find_first_not_of(' ') == std::string::npos) return false;
    std::error_code ignored;
    const bool exists = std::filesystem::exists(fileName, ignored);
    if (std::filesystem::is_directory(fileName, ignored)) return false;
    if (options_.kind == Kind::Open) {
        if (!exists) messages_.ShowMessage(options_.title, fileName + "\r\nThis file could not be found.");
        return exists;
    }
    if (!exists || !options_.askToReplace) return true;
    return messages_.Ask(options_.title, fileName + " already exists.\r\nDo you want to replace it?",
                         Question::YesNo) == Answer::Yes;
}

}  // namespace tw
