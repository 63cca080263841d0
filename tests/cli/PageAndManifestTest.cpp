#include "CssPage.h"
#include "CutPlanner.h"
#include "Manifest.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace sw {
namespace {

// 300 x 200 with a duplicate line at Y 50 and a line past the right edge:
// three rows (one of them empty) and three columns (the last one empty).
PieceLayout awkwardLayout() {
    const auto plan = PlanPieces({{50, 50}, {100, 400}}, 300, 200, {"out/", "a b", ".png"}, {});
    return LayOutPieces(std::get<CutPlan>(plan), 300, 200);
}

TEST(PieceLayout, CutsSectionsToThePictureAndKeepsEmptyTracks) {
    const PieceLayout layout = awkwardLayout();
    EXPECT_EQ(layout.columnWidths, (std::vector<i32>{100, 200, 0}));
    EXPECT_EQ(layout.rowHeights, (std::vector<i32>{50, 0, 150}));
    EXPECT_EQ(layout.pieces[7], (SectionRect{8, 100, 50, 200, 150, "out/a b8.png", "a b8.png"}));
    // The section between 300 and 400 lies wholly outside: no area, no negative size.
    EXPECT_EQ(layout.pieces[2].Width, 0);
}

TEST(CssPage, TracksCellsAndRelativeEncodedPaths) {
    const std::string page = CssPageText(awkwardLayout(), "a <b>", "pages/index.html");
    EXPECT_NE(page.find("<title>a &lt;b&gt;</title>"), std::string::npos);
    EXPECT_NE(page.find("grid-template-columns: 100px 200px 0px; grid-template-rows: 50px 0px "
                        "150px;"),
              std::string::npos);
    EXPECT_NE(page.find("<img style=\"grid-area: 3 / 2\" src=\"../out/a%20b8.png\" width=\"200\" "
                        "height=\"150\" alt=\"\">"),
              std::string::npos)
        << page;
    EXPECT_NE(page.find("<div style=\"grid-area: 1 / 3\"></div>"), std::string::npos);
}

TEST(CssPage, UrlPathsSurviveAnyName) {
    EXPECT_EQ(UrlPath("-a b/\xC3\xBC\"#%?.png"), "-a%20b/%C3%BC%22%23%25%3F.png");
    EXPECT_EQ(RelativeTo("/x/y/p1.png", "/x/y/index.html"), "p1.png");
    EXPECT_EQ(RelativeTo("/x/out/p1.png", "/x/page/index.html"), "../out/p1.png");
}

TEST(Manifest, NamesEverySectionWithItsPlaceAndFile) {
    const ManifestSource source{"in/a b.bmp", 300, 200, PieceFormat::Png};
    const auto json = nlohmann::json::parse(ManifestText(source, awkwardLayout()));
    EXPECT_EQ(json["picture"], "in/a b.bmp");
    EXPECT_EQ(json["format"], "png");
    EXPECT_EQ(json["rows"], 3);
    EXPECT_EQ(json["columns"], 3);
    ASSERT_EQ(json["sections"].size(), 9u);
    const auto& eighth = json["sections"][7];
    EXPECT_EQ(eighth["number"], 8);
    EXPECT_EQ(eighth["row"], 3);
    EXPECT_EQ(eighth["column"], 2);
    EXPECT_EQ(eighth["left"], 100);
    EXPECT_EQ(eighth["top"], 50);
    EXPECT_EQ(eighth["width"], 200);
    EXPECT_EQ(eighth["height"], 150);
    EXPECT_EQ(eighth["file"], "out/a b8.png");
    EXPECT_TRUE(json["sections"][4]["file"].is_null());
}

TEST(Manifest, BytesThatAreNoUtf8DoNotStopIt) {
    const ManifestSource source{"bad\xFF.bmp", 1, 1, PieceFormat::Bmp};
    const auto plan = PlanPieces({}, 1, 1, {"", "bad\xFF", ".bmp"}, {});
    const std::string text = ManifestText(source, LayOutPieces(std::get<CutPlan>(plan), 1, 1));
    EXPECT_TRUE(nlohmann::json::accept(text));
}

} // namespace
} // namespace sw
