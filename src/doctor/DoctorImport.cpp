#include "doctor/DoctorImport.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "doctor/ForeignImport.h"
#include "platform/Error.h"

namespace tw {
namespace {

bool AddsEntries(const DoctorFile& file, const ImportOptions& options) {
    if (file.IsRefused()) return false;
    return (options.addStyles && !file.content->styles.empty()) ||
           (options.addIngredients && file.HasIngredients());
}

bool TakesPart(const DoctorFile& file, const ImportOptions& options) {
    return std::ranges::any_of(file.recipes, &DoctorRecipe::chosen) || AddsEntries(file, options);
}

// Counts the recipes of several imports as if they were one, and remembers what the other host decided.
class CountingHost final : public CopyHost {
  public:
    CountingHost(CopyHost& host, int total) : host_(host), total_(total) {}

    // To be called before each file, with the number of its recipes.
    void Begin(int recipes) {
        before_ += count_;
        count_ = recipes;
        skipped_.clear();
    }
    bool HasCancelled() const { return cancelled_; }
    // The numbers of the recipes of the file that the brewer skipped.
    const std::vector<std::size_t>& Skipped() const { return skipped_; }

    bool Continue(const std::string& name, int number, int) override {
        number_ = number;
        cancelled_ = !host_.Continue(name, before_ + number, total_);
        return !cancelled_;
    }
    ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) override {
        ConflictAnswer answer = host_.ResolveConflict(name, freeName);
        cancelled_ = answer.response == ConflictResponse::Abort;
        if (answer.response == ConflictResponse::Skip) skipped_.push_back(static_cast<std::size_t>(number_));
        return answer;
    }
    bool ContinueAfter(const std::string& text) override {
        cancelled_ = !host_.ContinueAfter(text);
        return !cancelled_;
    }
    void DebugText(const std::string& text) override { host_.DebugText(text); }

  private:
    CopyHost& host_;
    int total_;
    int before_ = 0;  // recipes of the files before
    int count_ = 0;   // recipes of the present file
    int number_ = 0;  // of the recipe under way
    bool cancelled_ = false;
    std::vector<std::size_t> skipped_;
};

// Imports the files one after the other and keeps the account.
class FileByFile {
  public:
    FileByFile(DoctorFiles& files, const ImportOptions& options, CountingHost& host)
        : files_(files), options_(options), host_(host) {}

    // import stores the recipes of these indexes, adds its findings, and returns how many it stored.
    using Import = std::function<int(const DoctorFile& file, const std::vector<std::size_t>& recipes,
                                     Findings& findings)>;
    void Take(std::size_t index, const Import& import) {
        const DoctorFile& file = files_.All()[index];
        if (file.IsRefused()) return Say(Severity::Refused, file, "This file could not be read.");
        if (!TakesPart(file, options_)) return;
        if (host_.HasCancelled()) return SayCancelled(file);
        const std::vector<std::size_t> chosen = files_.ChosenOf(index);
        host_.Begin(static_cast<int>(chosen.size()));
        try {
            Findings findings;
            const int imported = import(file, chosen, findings);
            if (host_.HasCancelled()) return SayCancelled(file);
            outcome_.imported += imported;
            if (!chosen.empty())
                Say(Severity::Note, file,
                    "Imported " + CountOfRecipes(static_cast<std::size_t>(imported)) + ".");
            SayEntries(file, findings);
        } catch (const Error& error) {
            return Say(Severity::Refused, file, "Nothing was imported: " + error.Description());
        }
        for (const std::size_t recipe : chosen) files_.Choose(index, recipe, false);
        for (const std::size_t skipped : host_.Skipped()) SaySkipped(index, chosen[skipped]);
    }
    ImportOutcome Outcome() && { return std::move(outcome_); }

  private:
    void Say(Severity severity, const DoctorFile& file, std::string text) {
        outcome_.leftOut |= severity != Severity::Note;
        outcome_.lines.push_back({severity, file.name, std::move(text)});
    }
    void SayCancelled(const DoctorFile& file) {
        Say(Severity::Refused, file, "Nothing was imported, because you cancelled.");
    }
    // What became of the new entries of the catalogue. The window shows all other findings since the
    // examination.
    void SayEntries(const DoctorFile& file, const Findings& findings) {
        for (const Finding& finding : findings.All())
            if (finding.code == FindingCode::NewEntry) Say(finding.severity, file, finding.text);
    }
    // The recipe stays chosen, so that it can be imported under another name.
    void SaySkipped(std::size_t index, std::size_t recipe) {
        const DoctorFile& file = files_.All()[index];
        files_.Choose(index, recipe, true);
        Say(Severity::NotCarried, file,
            "'" + file.recipes[recipe].name + "' was skipped, because there is a recipe of that name.");
    }

    DoctorFiles& files_;
    const ImportOptions& options_;
    CountingHost& host_;
    ImportOutcome outcome_;
};

}  // namespace

bool DoctorImport::HasWork(const DoctorFiles& files, const ImportOptions& options) {
    return std::ranges::any_of(files.All(), [&](const DoctorFile& file) { return TakesPart(file, options); });
}

ImportOutcome DoctorImport::Run(DoctorFiles& files, std::int64_t folderId, const ImportOptions& options) {
    int total = 0;
    for (std::size_t i = 0; i < files.All().size(); ++i) total += static_cast<int>(files.ChosenOf(i).size());
    CountingHost host(host_, total);
    FileByFile account(files, options, host);
    const auto import = [&](const DoctorFile& file, const std::vector<std::size_t>& recipes,
                            Findings& findings) {
        return ForeignImport(doctor_, catalogue_, host)
            .Run(*file.content, file.name, {recipes, folderId, options}, findings);
    };
    for (std::size_t i = 0; i < files.All().size(); ++i) account.Take(i, import);
    return std::move(account).Outcome();
}

}  // namespace tw
