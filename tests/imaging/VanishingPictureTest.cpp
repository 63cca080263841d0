// A picture that another program removes or replaces while it is being
// opened: the loader reads the file it found, whole, and never takes the
// header of one file and the pixels of another (or of none) for damage.
#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/FileBytes.h"
#include "tests/imaging/TakenAfterOpen.h"
#include "tests/imaging/TestPictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace sw {
namespace {

const std::string kProjectData = SLICEWRIGHT_TEST_DATA;

TEST(PictureTakenWhileOpening, IsReadAsItWasFound) {
    const test::Bytes text = {'h', 'e', 'l', 'l', 'o', '\n'};
    for (const std::string name : {"small.bmp", "small.jpg", "small.gif"}) {
        const LoadedPicture untouched = QtPictureLoader().LoadPicture(kProjectData + "/" + name);
        ASSERT_TRUE(untouched.ok()) << name << ": " << untouched.error;
        for (const std::optional<test::Bytes>& replacement :
             {std::optional<test::Bytes>(), std::optional(text)}) {
            const test::ScratchFolder folder;
            const std::string path = folder.Path(name);
            test::WriteBytes(path, test::ReadBytes(kProjectData + "/" + name));
            test::TakeAfterOpen(path, replacement);
            const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
            const std::string what = name + (replacement ? " replaced by text" : " removed");
            // The file was taken away during the load, not before or after it.
            ASSERT_EQ(std::filesystem::exists(path), replacement.has_value()) << what;
            EXPECT_TRUE(loaded.ok()) << what << ": " << loaded.error;
            if (!loaded.ok()) {
                continue;
            }
            EXPECT_EQ(loaded.picture.Width(), untouched.picture.Width()) << what;
            EXPECT_EQ(loaded.picture.Height(), untouched.picture.Height()) << what;
            EXPECT_EQ(loaded.picture.PixelAt(0, 0), untouched.picture.PixelAt(0, 0)) << what;
        }
    }
}

} // namespace
} // namespace sw
