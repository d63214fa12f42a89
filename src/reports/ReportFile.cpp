#include "reports/ReportFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <unistd.h>
#include <utility>

#include "platform/Error.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

// The file that a link stands for.
std::string Resolve(const std::string& path) {
    std::error_code error;
    const fs::path target = fs::canonical(path, error);
    return error ? path : target.string();
}

}  // namespace

ReportFile::ReportFile(std::string path, bool append) : path_(Resolve(path)), append_(append) {
    std::error_code error;
    existed_ = fs::exists(path_, error);
    if (append_) {
        if (fs::is_regular_file(path_, error)) oldSize_ = fs::file_size(path_, error);
        file_ = std::fopen(path_.c_str(), "ab");
    } else if (!OpenBeside()) {
        file_ = std::fopen(path_.c_str(), "wb");
    }
    if (file_ == nullptr) Raise(errno);
}

// False when the file itself is to be written.
bool ReportFile::OpenBeside() {
    std::error_code error;
    if (existed_ && !fs::is_regular_file(path_, error)) return false;
    // A file that must not be written is not to be replaced either.
    if (existed_ && access(path_.c_str(), W_OK) != 0) return false;
    besidePath_ = path_ + "." + std::to_string(getpid()) + ".part";
    file_ = std::fopen(besidePath_.c_str(), "wbx");
    if (file_ == nullptr) {
        besidePath_.clear();
        return false;
    }
    if (existed_) fs::permissions(besidePath_, fs::status(path_, error).permissions(), error);
    return true;
}

ReportFile::~ReportFile() {
    if (file_ == nullptr) return;
    std::fclose(file_);
    TakeBack();
}

// What was there before comes back; of a file that is written itself nothing can.
void ReportFile::TakeBack() const {
    std::error_code ignored;
    if (!besidePath_.empty()) fs::remove(besidePath_, ignored);
    if (!append_ || !fs::is_regular_file(path_, ignored)) return;
    if (existed_)
        fs::resize_file(path_, oldSize_, ignored);
    else
        fs::remove(path_, ignored);
}

void ReportFile::Raise(int number) {
    throw Error("ReportFile", std::strerror(number), number);
}

void ReportFile::Write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) Raise(errno);
}

void ReportFile::Close() {
    const bool closed = std::fclose(std::exchange(file_, nullptr)) == 0;
    if (closed && (besidePath_.empty() || std::rename(besidePath_.c_str(), path_.c_str()) == 0)) return;
    const int number = errno;
    TakeBack();
    Raise(number);
}

bool CreateReportFile(Database& database, const SettingsStore& store, const ReportRequest& request,
                      MessagePort& messages) {
    const ReportOptions options = LoadReportOptions(store, request.type);
    try {
        const bool append = request.type == ReportType::Text && options.append;
        ReportFile file(request.path, append);
        WriteReport(database, request.names, request.units, request.type, options, file);
        file.Close();
        return true;
    } catch (const Error&) {
        messages.ShowMessage("Error", "Could not create report file \"" + request.path + "\"");
        return false;
    }
}

}  // namespace tw
