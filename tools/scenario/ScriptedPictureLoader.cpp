#include "tools/scenario/ScriptedPictureLoader.h"

#include "common/QuotedText.h"

namespace sw::scripted {

LoadedPicture ScriptedPictureLoader::LoadPicture(const std::string& path) {
    LoadedPicture result;
    if (auto found = declared_.find(path); found != declared_.end()) {
        result.picture = found->second;
    } else if (real_ != nullptr) {
        result = real_->LoadPicture(path);
    } else {
        result.error = "no such picture in the script";
    }
    const std::string outcome = result.ok() ? std::to_string(result.picture.Width()) + "x" +
                                                  std::to_string(result.picture.Height())
                                            : "error " + QuoteText(result.error);
    transcript_.Line("load " + QuoteText(path) + " -> " + outcome);
    return result;
}

} // namespace sw::scripted
