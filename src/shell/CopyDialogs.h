// Asks the brewer what copying recipes between files and the database needs to know, while the progress
// window pauses.
#pragma once

#include <optional>
#include <string>

#include "platform/Ports.h"
#include "store/RecipeCopy.h"
#include "tree/ProgressModel.h"

namespace tw {

class CopyDialogs final : public CopyHost {
  public:
    // isImport is false for an export. REQUIRES: platform and progress outlive this object.
    CopyDialogs(Platform& platform, ProgressModel& progress, bool isImport)
        : platform_(platform), progress_(progress), isImport_(isImport) {}

    // From now on, the question about a name that exists can be answered for all the rest.
    void OfferAll() { offersAll_ = true; }

    // True once the first recipe is being copied.
    bool HasBegun() const { return begun_; }

    bool Continue(const std::string& name, int number, int total) override;
    ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) override;
    bool ContinueAfter(const std::string& text) override;
    void DebugText(const std::string& text) override;

  private:
    Platform& platform_;
    ProgressModel& progress_;
    bool isImport_;
    bool begun_ = false;
    bool offersAll_ = false;
    std::optional<ConflictResponse> forAll_;
};

}  // namespace tw
