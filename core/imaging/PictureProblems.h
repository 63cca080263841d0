#pragma once

namespace sw {

// Why a picture file cannot be opened, in the words every decoder uses.
inline constexpr const char* kNotAPictureProblem =
    "the file is not a BMP, JPG or GIF picture, or it is damaged";
inline constexpr const char* kIncompleteFileProblem =
    "the file is incomplete: it ends before the picture does";

} // namespace sw
