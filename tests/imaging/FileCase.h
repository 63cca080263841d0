#pragma once

#include "tests/imaging/FileBytes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace sw::test {

// One row of a table of files and what reading each gives: the bytes under
// a name, and the problem they are refused with.
struct FileCase {
    std::string name;
    Bytes bytes;
    std::string problem;
};

// A failing row shows by its name, not as a dump of its bytes.
inline void PrintTo(const FileCase& row, std::ostream* out) {
    *out << row.name;
}

// A row's name as its test's name (a file name's dots become underscores),
// for the tables of INSTANTIATE_TEST_SUITE_P.
struct NameOfRow {
    template <typename Row> std::string operator()(const testing::TestParamInfo<Row>& info) const {
        std::string name = info.param.name;
        std::replace(name.begin(), name.end(), '.', '_');
        return name;
    }
};

} // namespace sw::test
