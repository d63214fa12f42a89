#include "platform/FileDialogModel.h"

#include <filesystem>
#include <utility>

namespace tw {

FileDialogModel::FileDialogModel(Options options, MessagePort& messages)
    : FormModel(kFormName), options_(std::move(options)), messages_(messages) {
    AddControls({TextEntry("FileName", text_)});
    AddButtons({{"cmdOK", [this] { Ok(); }}, {"cmdCancel", [this] { Close(); }}});
}

void FileDialogModel::Take(std::vector<std::string> fileNames) {
    fileNames_ = std::move(fileNames);
    Accept();
}

void FileDialogModel::Ok() {
    const std::string fileName = WithExtension();
    if (Accepts(fileName)) Take({fileName});
}

std::string FileDialogModel::WithExtension() const {
    const std::filesystem::path path(text_);
    if (path.has_extension() || !path.has_filename()) return text_;
    // To open: a file that exists under exactly the name typed, without an extension, is meant.
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
