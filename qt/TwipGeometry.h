#pragma once

class QWidget;

namespace sw::qt {

// Places a widget by a geometry in twips (15 to the pixel). The twips are
// kept as written: a widget stands on whole pixels, but the logic moves
// controls by steps that need not be whole pixels, and reading back the
// rounded place would let the steps drift.
class TwipGeometry {
public:
    // Starts from the widget's place and size now.
    explicit TwipGeometry(QWidget* widget);

    float Left() const { return left_; }
    float Top() const { return top_; }
    float Width() const { return width_; }
    float Height() const { return height_; }
    void SetLeft(float left);
    void SetTop(float top);
    void SetWidth(float width);
    void SetHeight(float height);

private:
    void move();
    void resize();
    QWidget* widget_;
    float left_;
    float top_;
    float width_;
    float height_;
};

// Twips to whole pixels, a tie to the even pixel.
int PixelsOf(float twips);

} // namespace sw::qt
