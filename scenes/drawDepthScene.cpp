#include "drawDepthScene.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include <QImage>

#include "drawScene.h"
#include "sceneMath.h"

namespace {

using namespace sceneMath;

constexpr float kAspect = 1.5f; // in scene coordinates the pictures are 1.5 wide and 1 high
constexpr float kSmallest = 0.001f;
constexpr float kInfinite = std::numeric_limits<float>::infinity();

/// What a ray hits: its encoded colour without air, and its depth as the exponent of the transmission, beta d.
struct Hit
{
    Vector colour;
    float depth = kInfinite;
};

float chance(int i, std::uint32_t seed)
{
    return cellValue(i, 7, seed);
}

/// 0..1, mostly near one of the ends, like light and shadow among leaves and stones.
float patches(float u, float v, float wavelength, std::uint32_t seed)
{
    return smoothstep(0.30f, 0.68f, fractal(u, v, wavelength, kSmallest, 5, seed));
}

Vector leaves(float u, float v, float wavelength, std::uint32_t seed)
{
    const Vector light = mix(Vector{0.24f, 0.38f, 0.10f}, Vector{0.46f, 0.42f, 0.14f}, noise(u / 0.2f, v / 0.1f, seed + 50));
    return mix(Vector{0.02f, 0.05f, 0.02f}, light, patches(u, v, 0.4f * wavelength, seed));
}

Vector stones(float u, float v, float size, std::uint32_t seed)
{
    const float row = std::floor(v / size), across = u / (2 * size) + 0.5f * row;
    const float x = across - std::floor(across), y = v / size - row;
    const float joint = std::min({x * 2, (1 - x) * 2, y, 1 - y});
    const float shade = 0.6f + 0.6f * cellValue(int(std::floor(across)), int(row), seed);
    return Vector{0.42f, 0.31f, 0.20f} *
           (shade * smoothstep(0.0f, 0.12f, joint) * (0.55f + 0.6f * patches(u, v, size, seed + 1)) + 0.05f);
}

// A wall with a straight, slanted edge in front of wooded slopes.
Hit straightEdge(float u, float v)
{
    if (u < 0.62f + 0.12f * (v - 0.5f))
        return {stones(u, v, 0.045f, 201), 0.06f};
    const float top = 0.22f + 0.05f * fractal(u, 0, 0.5f, 0.01f, 4, 202);
    return v > top ? Hit{leaves(u, v, 0.02f, 203), 1.6f} : Hit{};
}

// Six wooded ridges, each nearer at its foot than at its top.
Hit ridges(float u, float v)
{
    constexpr float kDepth[] = {0.25f, 0.6f, 1.1f, 1.8f, 2.8f, 4.2f};
    constexpr float kTop[] = {0.86f, 0.72f, 0.59f, 0.49f, 0.40f, 0.33f};
    for (int i = 0; i < 6; ++i) {
        const auto seed = std::uint32_t(210 + 10 * i);
        const float size = 1 / float(i + 1);
        const float crowns = 0.03f * size * std::fabs(noise(u * 45 / size, 1.5f, seed + 1) - 0.3f);
        const float top = kTop[i] + 0.34f * (fractal(u, 3, 0.9f, 0.02f, 5, seed) - 0.5f) - crowns;
        if (v > top)
            return {leaves(u, v, 0.06f * size, seed + 2), kDepth[i] * (1 - 0.45f * smoothstep(0, 0.25f, v - top))};
    }
    return {};
}

struct Twig
{
    float u, v, endU, endV, width;
};

void grow(std::vector<Twig> &twigs, float u, float v, float angle, float length, float width, int seed)
{
    const float endU = u + length * std::cos(angle), endV = v + length * std::sin(angle);
    twigs.push_back({u, v, endU, endV, width});
    if (length < 0.025f)
        return;
    for (int i = 0; i < 3; ++i) {
        const int child = 3 * seed + i + 1;
        grow(twigs, endU, endV, angle + 1.3f * (chance(child, 221) - 0.5f) + 0.25f * float(i - 1),
             length * mix(0.55f, 0.85f, chance(child, 222)), std::max(0.0012f, width * 0.66f), child);
    }
}

// Bare branches, down to a pixel or two wide, in front of hills and sky.
Hit twigs(float u, float v)
{
    constexpr int kBins = 512; // columns of the picture, each with the twigs that reach into it
    static const std::vector<std::vector<Twig>> bins = [] {
        std::vector<Twig> all;
        grow(all, -0.02f, 0.75f, -0.5f, 0.28f, 0.020f, 1);
        grow(all, 1.52f, 0.60f, 3.6f, 0.30f, 0.022f, 2);
        grow(all, 0.80f, 1.02f, -1.45f, 0.26f, 0.018f, 3);
        std::vector<std::vector<Twig>> sorted(kBins);
        for (const Twig &twig : all) {
            const auto bin = [](float at) { return std::clamp(int(at / kAspect * kBins), 0, kBins - 1); };
            const int last = bin(std::max(twig.u, twig.endU) + twig.width);
            for (int i = bin(std::min(twig.u, twig.endU) - twig.width); i <= last; ++i)
                sorted[std::size_t(i)].push_back(twig);
        }
        return sorted;
    }();
    for (const Twig &twig : bins[std::size_t(std::clamp(int(u / kAspect * kBins), 0, kBins - 1))]) {
        const float alongU = twig.endU - twig.u, alongV = twig.endV - twig.v;
        const float part =
            std::clamp(((u - twig.u) * alongU + (v - twig.v) * alongV) / (alongU * alongU + alongV * alongV), 0.0f, 1.0f);
        if (std::hypot(u - twig.u - part * alongU, v - twig.v - part * alongV) < twig.width)
            return {Vector{0.22f, 0.15f, 0.09f} * (0.3f + patches(u, v, 0.012f, 223)), 0.03f};
    }
    const float hill = 0.55f + 0.25f * (fractal(u, 1, 0.8f, 0.02f, 4, 224) - 0.5f);
    if (v > hill + 0.22f)
        return {leaves(u, v, 0.03f, 225), 0.9f};
    return v > hill ? Hit{leaves(u, v, 0.015f, 226), 2.0f} : Hit{};
}

// Steps that lead away from all four sides, each at a single depth, with the sky at the end.
Hit stairs(float u, float v)
{
    const float away = std::max(std::fabs(u - 0.75f) / 0.75f, std::fabs(v - 0.42f) / 0.58f);
    const int step = int((1 - away) * 8);
    if (step >= 7)
        return {};
    const auto i = float(step);
    return {stones(u, v, 0.05f / (1 + 0.6f * i), 230), 0.12f * std::pow(1.6f, i)};
}

// Four rows of houses, the nearest first.
Hit roofs(float u, float v)
{
    constexpr float kDepth[] = {0.15f, 0.55f, 1.2f, 2.1f};
    constexpr float kWidth[] = {0.40f, 0.25f, 0.16f, 0.10f};
    constexpr float kFoot[] = {1.10f, 0.84f, 0.66f, 0.54f};
    constexpr Vector kWall[] = {{0.66f, 0.50f, 0.30f}, {0.50f, 0.22f, 0.16f}, {0.62f, 0.58f, 0.46f}, {0.40f, 0.30f, 0.22f}};
    for (int i = 0; i < 4; ++i) {
        const auto seed = std::uint32_t(240 + 10 * i);
        const float place = u / kWidth[i] + 0.37f * float(i);
        const int house = int(std::floor(place));
        const float x = place - std::floor(place), y = (kFoot[i] - v) / kWidth[i]; // upwards, in widths of a house
        const float eaves = mix(0.45f, 0.80f, chance(house, seed));
        const bool gable = chance(house, seed + 1) < 0.5f;
        const float roof = eaves + (gable ? 0.42f * (1 - std::fabs(2 * x - 1)) : 0.30f * std::min(1.0f, 6 * std::min(x, 1 - x)));
        const bool chimney = x > 0.68f && x < 0.76f && y > eaves && y < eaves + 0.45f;
        if (y > roof && !chimney)
            continue;
        const float grain = 0.7f + 0.4f * patches(u, v, 0.1f * kWidth[i], seed + 2);
        if (y > eaves && !(gable && y < roof - 0.06f) && !chimney) {
            const float row = y * 26 - std::floor(y * 26);
            return {Vector{0.52f, 0.22f, 0.13f} * (grain * (0.25f + 0.75f * smoothstep(0.0f, 0.35f, row))), kDepth[i]};
        }
        const float column = x * 5 - std::floor(x * 5), floor = y * 5 - std::floor(y * 5);
        const bool window = column > 0.3f && column < 0.7f && floor > 0.25f && floor < 0.8f && y < eaves;
        const Vector wall = kWall[int(chance(house, seed + 3) * 3.99f)];
        return {window ? Vector{0.05f, 0.05f, 0.06f} : wall * grain, kDepth[i]};
    }
    return {};
}

// Leaves near the camera with gaps of all sizes, through which the ridges are seen.
Hit foliage(float u, float v)
{
    const float border = std::max(std::fabs(u - 0.75f) / 0.75f, std::fabs(v - 0.5f) / 0.5f);
    if (fractal(u, v, 0.16f, 0.002f, 7, 251) + 0.22f * border * border > 0.62f)
        return {leaves(u, v, 0.025f, 252), 0.04f};
    return ridges(u, v);
}

// Balls of many sizes and colours, from near to far, over a plain.
Hit balls(float u, float v)
{
    constexpr float kHorizon = 0.48f;
    for (int i = 0; i < 22; ++i) {
        const float depth = 0.10f * std::pow(1.165f, float(i));
        const float radius = mix(0.5f, 1.0f, chance(i, 261)) * 0.13f / (0.75f + depth);
        const float x = (u - kAspect * chance(5 * i + 2, 262)) / radius;
        const float y = (v - mix(kHorizon - 0.2f, kHorizon + 0.30f / (0.6f + depth), chance(i, 263))) / radius;
        if (x * x + y * y > 1)
            continue;
        const float light = 0.15f + 0.85f * std::max(0.0f, -0.6f * x - 0.6f * y + 0.5f * std::sqrt(1 - x * x - y * y));
        const float hue = 6.2832f * chance(i, 264);
        const Vector colour{0.38f + 0.3f * std::cos(hue), 0.32f + 0.3f * std::cos(hue + 2.1f),
                            0.30f + 0.3f * std::cos(hue + 4.2f)};
        return {colour * (light * (0.35f + 0.7f * patches(u, v, radius * 0.3f, 265))), depth};
    }
    return v > kHorizon + 0.01f ? Hit{leaves(u, v, 0.08f * (v - kHorizon), 266), 0.12f / (v - kHorizon)} : Hit{};
}

// A low horizon with towers and trees; two thirds of the picture is sky.
Hit wideSky(float u, float v)
{
    constexpr float kHorizon = 0.68f;
    constexpr float kTowerDepth = 1.3f, kTreeDepth = 0.35f;
    const float place = u / 0.09f;
    const int tower = int(std::floor(place));
    const float x = place - std::floor(place);
    const float trees = 0.80f + 0.10f * (fractal(u, 5, 0.3f, 0.003f, 6, 271) - 0.5f);
    if (v > trees && v < 0.86f)
        return {leaves(u, v, 0.03f, 272), kTreeDepth};
    const float height = chance(tower, 273) < 0.6f ? 0.28f * chance(tower, 274) : 0.0f;
    if (x > 0.15f && x < 0.85f && v > kHorizon - height && v < kHorizon + 0.03f) {
        const float rows = v * 90 - std::floor(v * 90), columns = x * 7 - std::floor(x * 7);
        const bool window = rows > 0.4f && columns > 0.4f;
        return {window ? Vector{0.05f, 0.06f, 0.08f} : Vector{0.45f, 0.34f, 0.26f} * (0.6f + 0.5f * chance(tower, 275)),
                kTowerDepth};
    }
    return v > kHorizon + 0.01f ? Hit{leaves(u, v, 0.15f * (v - kHorizon), 276), 0.11f / (v - kHorizon)} : Hit{};
}

// A road with trees on both sides: depth that increases smoothly, with trunks in front of it.
Hit avenue(float u, float v)
{
    constexpr float kHorizon = 0.45f;
    float depth = 0.25f;
    for (int i = 0; i < 10; ++i, depth *= 1.35f) {
        for (const float side : {-1.0f, 1.0f}) {
            const auto seed = std::uint32_t(280 + i);
            const float x = (u - 0.75f) * depth - side * 0.13f, y = (kHorizon - v) * depth; // at the tree's depth
            const float crown = std::hypot(x, y - 0.07f) + 0.05f * (fractal(u * depth, v * depth, 0.03f, 0.001f, 4, seed) - 0.5f);
            if (crown < 0.075f)
                return {leaves(u, v, 0.012f / depth, seed), depth};
            if (std::fabs(x) < 0.008f && y < 0.02f && y > -0.10f)
                return {Vector{0.25f, 0.17f, 0.11f} * (0.3f + patches(u, v, 0.01f / depth, seed)), depth};
        }
    }
    const float below = v - kHorizon;
    if (below < 0.02f)
        return v > 0.40f + 0.02f * noise(u * 9, 0, 291) ? Hit{leaves(u, v, 0.01f, 292), 3.2f} : Hit{};
    const float ground = 0.10f / below;
    if (std::fabs(u - 0.75f) * ground < 0.06f)
        return {Vector{0.34f, 0.28f, 0.22f} * (0.25f + 0.9f * patches(u * ground, 1 / below, 0.02f, 293)), ground};
    return {leaves(u * ground, 0.05f / below, 0.02f, 294), ground};
}

// Fields from above under an even layer of fog, without sky.
Hit fogFromAbove(float u, float v)
{
    constexpr Vector kCrop[] = {{0.42f, 0.40f, 0.10f}, {0.20f, 0.34f, 0.08f}, {0.48f, 0.30f, 0.14f}, {0.12f, 0.24f, 0.06f}};
    const float x = u / 0.17f + 0.4f * noise(u * 4, v * 4, 301), y = v / 0.14f + 0.4f * noise(u * 4, v * 4, 302);
    const Vector crop = kCrop[int(cellValue(int(std::floor(x)), int(std::floor(y)), 303) * 3.99f)];
    return {crop * (0.12f + 0.95f * patches(u, v, 0.025f, 304)), 1.0f};
}

// White houses and snow near the camera, wooded hills between.
Hit whiteWalls(float u, float v)
{
    const float grain = 0.97f + 0.03f * fractal(u, v, 0.03f, kSmallest, 4, 311);
    const bool left = u < 0.52f && v > 0.18f + 0.20f * std::fabs(u - 0.22f), right = u > 1.08f && v > 0.30f;
    if ((left || right) && v < 0.90f) {
        const float x = u / 0.16f - std::floor(u / 0.16f), y = v / 0.22f - std::floor(v / 0.22f);
        const bool window = x > 0.40f && x < 0.62f && y > 0.35f && y < 0.70f;
        return {window ? Vector{0.07f, 0.07f, 0.09f} : Vector{0.93f, 0.92f, 0.89f} * grain, left ? 0.10f : 0.30f};
    }
    if (v > 0.80f)
        return {Vector{0.90f, 0.91f, 0.94f} * grain, 0.05f / (v - 0.70f)};
    return ridges(u, v);
}

struct Lamp
{
    float u, v, depth;
};
constexpr Lamp kLamps[] = {{0.30f, 0.26f, 0.3f}, {1.15f, 0.34f, 0.6f}, {0.62f, 0.42f, 1.2f}, {0.86f, 0.46f, 2.0f}};

// A street at night: lamps and lit windows, everything else dark.
Hit night(float u, float v)
{
    for (const Lamp &lamp : kLamps) {
        if (std::hypot(u - lamp.u, v - lamp.v) < 0.012f / (0.4f + lamp.depth))
            return {{1.0f, 0.96f, 0.85f}, lamp.depth};
        if (std::fabs(u - lamp.u) < 0.004f / (0.4f + lamp.depth) && v > lamp.v && v < 0.52f + 0.20f / (0.4f + lamp.depth))
            return {{0.03f, 0.03f, 0.03f}, lamp.depth};
    }
    Hit hit = roofs(u, v);
    const float lit = cellValue(int(u * 40), int(v * 40), 321);
    const bool window = hit.colour.x < 0.06f && hit.colour.z > 0.055f;
    hit.colour = window && lit < 0.4f ? Vector{0.75f, 0.58f, 0.28f} : hit.colour * 0.3f;
    return hit;
}

// What the lamps add to the airlight around them.
Vector lampLight(float u, float v)
{
    float light = 0;
    for (const Lamp &lamp : kLamps)
        light += 0.6f * std::exp(-std::hypot(u - lamp.u, v - lamp.v) * 9 * (0.4f + lamp.depth));
    return Vector{1.0f, 0.85f, 0.55f} * light;
}

// The outline of a stitched panorama.
bool insidePanorama(float u, float v)
{
    const float top = 0.10f + 0.07f * std::cos(4.2f * u), bottom = 0.90f + 0.05f * std::cos(3.1f * u + 1);
    return v > top && v < bottom && u > 0.04f + 0.05f * v && u < 1.46f - 0.08f * v;
}

struct Design
{
    const char *name;
    Hit (*at)(float u, float v); ///< Null: the sample landscape.
    Vector airlight;
    float noise = 0; ///< Standard deviation of the sensor noise where the picture is white.
    bool (*inside)(float u, float v) = nullptr;
    bool filled = false; ///< The area outside, with alpha 0, shows the scene instead of black.
    Vector (*glow)(float u, float v) = nullptr;
};

constexpr Vector kWhite{0.88f, 0.88f, 0.88f};
constexpr Design kDesigns[] = {
    {"straight-edge", straightEdge, kWhite},
    {"twigs", twigs, kWhite},
    {"stairs", stairs, kWhite},
    {"ridges", ridges, kWhite},
    {"roofs", roofs, kWhite},
    {"foliage", foliage, kWhite},
    {"balls", balls, kWhite},
    {"avenue, bluish air", avenue, {0.70f, 0.80f, 0.92f}},
    {"roofs, evening air", roofs, {0.93f, 0.71f, 0.47f}},
    {"wide sky", wideSky, {0.82f, 0.86f, 0.90f}},
    {"ridges, noise", ridges, kWhite, 0.025f},
    {"ridges, black border", ridges, kWhite, 0, insidePanorama},
    {"ridges, filled border", ridges, kWhite, 0, insidePanorama, /*filled=*/true},
    {"landscape", nullptr, {kSceneAirlight[0], kSceneAirlight[1], kSceneAirlight[2]}},
    {"even fog, no sky", fogFromAbove, kWhite},
    {"white walls", whiteWalls, kWhite},
    {"night, lamps", night, {0.10f, 0.11f, 0.14f}, 0, nullptr, /*filled=*/false, lampLight},
};

void store(Vector colour, float alpha, float *pixel)
{
    pixel[0] = colour.x;
    pixel[1] = colour.y;
    pixel[2] = colour.z;
    pixel[3] = alpha;
}

void drawRow(const Design &design, DepthScene &scene, int y)
{
    constexpr int kSamples = 2; // in each direction
    for (int x = 0; x < scene.width; ++x) {
        Vector hazy, truth;
        float transmission = 0;
        for (int sample = 0; sample < kSamples * kSamples; ++sample) {
            const int column = x * kSamples + sample % kSamples, row = y * kSamples + sample / kSamples;
            const float u = kAspect * (float(column) + 0.5f) / float(scene.width * kSamples);
            const float v = (float(row) + 0.5f) / float(scene.height * kSamples);
            const Vector airlight = design.glow ? design.airlight + design.glow(u, v) : design.airlight;
            const Hit hit = design.at(u, v);
            const float clear = std::exp(-hit.depth);
            const Vector colour = clear > 0 ? hit.colour : airlight;
            hazy = hazy + mix(airlight, colour, clear) * (1.0f / (kSamples * kSamples));
            truth = truth + colour * (1.0f / (kSamples * kSamples));
            transmission += clear / (kSamples * kSamples);
        }
        const float u = kAspect * (float(x) + 0.5f) / float(scene.width);
        const float v = (float(y) + 0.5f) / float(scene.height);
        const float alpha = !design.inside || design.inside(u, v) ? 1.0f : 0.0f;
        const std::size_t at = std::size_t(y) * std::size_t(scene.width) + std::size_t(x);
        store(design.filled ? hazy : hazy * alpha, alpha, &scene.hazy[4 * at]);
        store(truth * alpha, alpha, &scene.truth[4 * at]);
        scene.transmission[at] = alpha > 0 ? transmission : std::numeric_limits<float>::quiet_NaN();
    }
}

/// Photon noise and a little read-out noise; `deviation` is the standard deviation where the picture is white.
void addNoise(DepthScene &scene, float deviation)
{
    for (int y = 0; y < scene.height; ++y) {
        float *sample = &scene.hazy[4 * std::size_t(y) * std::size_t(scene.width)];
        for (int i = 0; i < 4 * scene.width; ++i) {
            if (i % 4 == 3)
                continue;
            float normal = -6; // the sum of twelve uniform numbers, less its mean
            for (std::uint32_t k = 0; k < 12; ++k)
                normal += cellValue(i, y, 331 + k);
            sample[i] = std::clamp(sample[i] + normal * deviation * std::sqrt(0.1f + 0.9f * sample[i]), 0.0f, 1.0f);
        }
    }
}

/// The landscape's haze is mixed from whole pixels, and not rounded to 8 bits.
void drawLandscape(const Design &design, DepthScene &scene)
{
    const QImage clear = drawScene(scene.width, scene.height, /*haze=*/false, &scene.transmission);
    std::size_t at = 0;
    for (int y = 0; y < scene.height; ++y)
        for (int x = 0; x < scene.width; ++x, ++at) {
            const QRgb value = clear.pixel(x, y);
            const Vector colour = Vector{float(qRed(value)), float(qGreen(value)), float(qBlue(value))} * (1 / 255.0f);
            store(colour, 1, &scene.truth[4 * at]);
            store(mix(design.airlight, colour, scene.transmission[at]), 1, &scene.hazy[4 * at]);
        }
}

} // namespace

QStringList depthSceneNames()
{
    QStringList names;
    for (const Design &design : kDesigns)
        names << QString::fromLatin1(design.name);
    return names;
}

DepthScene drawDepthScene(const QString &name, int width, int height)
{
    const auto *const design = std::find_if(std::begin(kDesigns), std::end(kDesigns),
                                            [&](const Design &one) { return name == QLatin1String(one.name); });
    if (design == std::end(kDesigns) || width < 1 || height < 1)
        return {};
    const std::size_t pixels = std::size_t(width) * std::size_t(height);
    DepthScene scene{width,
                     height,
                     std::vector<float>(4 * pixels),
                     std::vector<float>(4 * pixels),
                     std::vector<float>(pixels),
                     {design->airlight.x, design->airlight.y, design->airlight.z}};
    if (!design->at) {
        drawLandscape(*design, scene);
        return scene;
    }
#pragma omp parallel for schedule(dynamic, 8)
    for (int y = 0; y < height; ++y)
        drawRow(*design, scene, y);
    if (design->noise > 0)
        addNoise(scene, design->noise);
    return scene;
}
