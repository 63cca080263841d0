#include "tools/scenario/ScriptedUserFolders.h"

namespace sw::scripted {

std::string ScriptedUserFolders::PicturesFolder() {
    transcript_.Check("user pictures folder");
    return pictures_;
}

bool ScriptedUserFolders::FolderExists(const std::string& path) {
    transcript_.Check("user folder exists " + path);
    // A stored LastSaveDir keeps its closing separator.
    std::string folder = path;
    if (folder.size() > 1 && folder.back() == '/') {
        folder.pop_back();
    }
    return vanished_.count(folder) == 0;
}

void ScriptedUserFolders::SetPictures(std::string folder, bool chosenByScript) {
    if (chosenByScript_ && !chosenByScript) {
        return;
    }
    pictures_ = std::move(folder);
    chosenByScript_ = chosenByScript;
}

} // namespace sw::scripted
