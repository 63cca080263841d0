#pragma once

#include "common/AtomicFile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sw {

// The bytes of a picture file, encoded in memory and not yet on disk: so that
// encoding can run anywhere and the file is put in place later, in order.
struct EncodedFile {
    std::vector<std::uint8_t> bytes;
    // A JPG that replaces a file keeps the old file's access and modification
    // times; a BMP does not.
    bool keepsReplacedTimes = false;
};

// Puts the bytes in place under the name: an existing file is replaced only
// once the new one is complete. Failures throw FileWriteError and leave an
// earlier file at that path as it was. `sync` says when it reaches the disk.
void WriteEncodedFile(const EncodedFile& file, const std::string& fileName,
                      SyncMode sync = SyncMode::Immediate);

} // namespace sw
