#pragma once

#include "PictureJob.h"
#include "export/SectionCells.h"

#include <string>
#include <vector>

namespace sw {

// Writes the files asked for beside the pieces: the window's HTML table of
// the cells, the CSS page and the manifest, each into its folder (made if
// missing) and each name added to `written` once the file is on disk.
// A file that cannot be written throws FileWriteError; those before it stay.
// Like the pieces, the files reach the disk with the picture's final sync.
void WriteSideFiles(const PictureJob& job, const SectionCells& cells,
                    std::vector<std::string>& written);

} // namespace sw
