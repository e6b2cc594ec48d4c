#include "assets/make/pictures/frame.h"

#include "assets/make/pictures/table_geometry.h"
#include "assets/make/pictures/wood.h"

#include <array>
#include <cmath>

namespace quillet::artwork
{

namespace
{

constexpr double windowWidth = designedTable.innerWidth;
constexpr double windowHeight = designedTable.innerHeight;

enum class Matter { wood, brass, joint };

// One facet of the moulding, outermost first. The slopes are those at its two edges; 1 faces fully
// outwards.
struct Facet {
    double until; // share of the width
    double slopeFrom;
    double slopeTo;
    Matter matter;
};

// The status bar covers the innermost two pixels of the lower rail, so the brass stops before them.
constexpr std::array<Facet, 8> moulding{{
    {0.05, 0, 0, Matter::joint},
    {0.22, 0.9, 0.6, Matter::wood},
    {0.26, -0.9, -0.9, Matter::wood},
    {0.52, 0.30, -0.25, Matter::wood},
    {0.66, -0.5, -1.0, Matter::wood},
    {0.70, 0, 0, Matter::joint},
    {0.84, 1.0, -1.0, Matter::brass},
    {1.01, 0, 0, Matter::joint},
}};

// The side of the frame at a point. The corners are mitred.
struct Rail {
    double inward; // 0 at the outer edge, 1 at the inner
    double along;
    double facing; // 1 if the outer facets face the light, -1 if they face away
    double joint;  // distance from the mitre joint
};

Rail railAt(double x, double y)
{
    const double side = std::min(x, windowWidth - x) / frameSideWidth;
    const double end = std::min(y, windowHeight - y) / frameEdgeHeight;
    const double joint = std::abs(side - end) * 9;
    if (side < end)
        return {side, y + (x < windowWidth / 2 ? 2000 : 4000), x < windowWidth / 2 ? 0.8 : -0.8,
                joint};
    return {end, x + (y < windowHeight / 2 ? 6000 : 8000), y < windowHeight / 2 ? 1.0 : -1.0,
            joint};
}

Colour frameColour(const Wood& wood, double x, double y)
{
    const Rail rail = railAt(x, y);
    double from = 0;
    for (const Facet& facet : moulding) {
        if (rail.inward < facet.until) {
            const double share = (rail.inward - from) / (facet.until - from);
            const double slope = facet.slopeFrom + (facet.slopeTo - facet.slopeFrom) * share;
            const double light = slope * rail.facing;
            const double seam = rail.joint < 0.5 ? 0.6 : 1;
            if (facet.matter == Matter::joint)
                return lit(rgb(0x1a0d06), seam);
            if (facet.matter == Matter::brass)
                return lit(mix(rgb(0x8a6428), rgb(0xf6dfa6), 0.5 + 0.5 * light), seam);
            return lit(wood.at(rail.along, rail.inward * frameSideWidth),
                       (1 + 0.62 * light) * seam);
        }
        from = facet.until;
    }
    return rgb(0x1a0d06);
}

} // namespace

Canvas framePiece(FramePiece piece)
{
    const bool lying = piece == FramePiece::picTop || piece == FramePiece::picBottom;
    const QSize size = lying ? QSize(566, 14) : QSize(13, 461);
    const double stretchX = lying ? windowWidth / size.width() : 1;
    const double stretchY = lying ? 1 : windowHeight / size.height();
    const double left = piece == FramePiece::picSide2 ? windowWidth - frameSideWidth : 0;
    const double top = piece == FramePiece::picBottom ? windowHeight - frameEdgeHeight : 0;
    const Wood wood({.light = rgb(0x8d5330),
                     .dark = rgb(0x45220f),
                     .bandWidth = 5,
                     .figure = 0.5,
                     .pores = 0.8,
                     .seed = 71});

    Canvas canvas(size, tableScale);
    QPainterPath whole;
    whole.addRect(QRectF(QPointF(0, 0), size));
    canvas.shade(whole, [&](double x, double y) {
        return frameColour(wood, left + x * stretchX, top + y * stretchY);
    });
    return canvas;
}

} // namespace quillet::artwork
