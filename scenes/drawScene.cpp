#include "drawScene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "sceneMath.h"

namespace {

using namespace sceneMath;

constexpr float kPi = 3.14159265f;

struct House
{
    float x, z, halfLength, halfWidth, turn, wall, roof;
    Vector wallColour, roofColour;
    bool tower;
};

constexpr Vector kWhite{0.86f, 0.83f, 0.76f}, kOchre{0.80f, 0.66f, 0.42f}, kRose{0.78f, 0.58f, 0.50f}, kWood{0.36f, 0.25f, 0.17f};
constexpr Vector kTile{0.62f, 0.25f, 0.15f}, kOldTile{0.45f, 0.22f, 0.16f}, kSlate{0.25f, 0.27f, 0.31f};

// Metres; the camera stands at the origin and looks along z. Walls and roofs are heights.
constexpr std::array<House, 17> kVillage{{
    {24, 432, 13, 6.5f, 0.25f, 11, 8, kWhite, kTile, false},
    {38, 428, 4, 4, 0.25f, 25, 17, kWhite, kSlate, true},
    {-34, 396, 8, 5.5f, 0.10f, 6, 5, kOchre, kTile, false},
    {-8, 372, 9, 5.5f, 1.45f, 6, 5, kWhite, kOldTile, false},
    {62, 398, 8, 5.5f, -0.30f, 6, 5, kRose, kTile, false},
    {84, 430, 9, 5.5f, 0.60f, 7, 5, kOchre, kOldTile, false},
    {-62, 430, 8, 5, 1.20f, 6, 4, kWhite, kTile, false},
    {-14, 470, 9, 6, 0.45f, 6, 5, kRose, kOldTile, false},
    {58, 486, 9, 5.5f, 1.30f, 7, 5, kWhite, kTile, false},
    {108, 476, 10, 6, 0.15f, 6, 5, kOchre, kTile, false},
    {-92, 476, 12, 6, 0.20f, 7, 6, kWood, kOldTile, false},
    {26, 540, 9, 6, 0.90f, 6, 5, kOchre, kTile, false},
    {-48, 545, 9, 6, 0.35f, 6, 5, kWhite, kOldTile, false},
    {132, 420, 13, 6.5f, 0.50f, 6, 6, kWood, kOldTile, false},
    {-128, 690, 14, 7, 0.30f, 7, 6, kWhite, kTile, false},
    {330, 880, 14, 7, 0.70f, 7, 6, kWhite, kTile, false},
    {-360, 1010, 14, 7, 0.15f, 7, 6, kOchre, kOldTile, false},
}};

constexpr float kLakeLevel = 6;

// Below 1 inside the lake, above 1 outside.
float lakeShape(float x, float z)
{
    const float u = (x - 190) / 330, v = (z - 830) / 135;
    const float away = u * u + v * v;
    return away > 2 ? away : away + 0.5f * (fractal(x, z, 120, 10, 3, 77) - 0.5f);
}

float hump(float x, float z, float atX, float atZ, float wideX, float wideZ)
{
    const float u = (x - atX) / wideX, v = (z - atZ) / wideZ;
    return std::exp(-u * u - v * v);
}

float groundHeight(float x, float z, float smallest)
{
    float height =
        58 * std::exp(-z * z / (140.0f * 140.0f)) - 0.03f * std::min(std::fabs(x), 60.0f) + 5 * fractal(x, z, 70, smallest, 4, 5);
    height += 22 * (fractal(x, z, 520, smallest, 5, 11) - 0.35f) * smoothstep(60, 500, z);
    const float hills = 210 * hump(x, z, -760, 1500, 420, 520) + 330 * hump(x, z, 1250, 2500, 640, 620) +
                        260 * hump(x, z, -1200, 4000, 1500, 900);
    if (hills > 0.05f)
        height += hills * (0.60f + 0.8f * fractal(x, z, 420, smallest, 7, 21));
    if (z > 2600)
        height += smoothstep(2600, 6000, z) * 470 * fractal(x, z, 2300, smallest, 8, 31);
    const float range = smoothstep(5200, 9800, z + 0.3f * x) * (1 - 0.6f * smoothstep(13000, 20000, z));
    if (range > 0)
        height += range * 3500 * (0.35f + 0.65f * hump(x, z, 900, 10800, 4200, 4500)) *
                  fractal(x, z, 4600, smallest, 10, 41, /*ridged=*/true);
    const float lake = lakeShape(x, z);
    if (lake < 1.35f)
        height = mix(std::min(height, kLakeLevel - 1), std::max(height, kLakeLevel + 0.5f), smoothstep(0.95f, 1.35f, lake));
    return height;
}

float woodiness(float x, float z)
{
    float wood = fractal(x, z, 380, 20, 4, 51) + 0.30f * smoothstep(1000, 1900, z) - 0.15f * smoothstep(3800, 6000, z);
    wood +=
        0.35f * hump(x, z, -760, 1500, 420, 520) + 0.6f * hump(x, z, -150, 150, 85, 60) + 0.55f * hump(x, z, 175, 190, 90, 45);
    wood -= 0.8f * hump(x, z, 20, 450, 190, 130);
    wood += 0.6f * hump(x, z, -62, 92, 26, 26) + 0.6f * hump(x, z, 78, 104, 24, 30) - 0.9f * hump(x, z, 0, 90, 38, 90);
    return wood;
}

struct Tree
{
    float height = 0; // of the tree; 0 if there is none
    float above = 0;  // height of its surface above the ground at this place
    float shade = 0;  // 0..1, one tint per tree
    bool conifer = false;
};

// Each cell of a rotated grid holds at most one tree, which lies entirely inside the cell.
Tree treeAt(float x, float z)
{
    constexpr float kCell = 9.5f;
    const float u = (0.83f * x - 0.56f * z) / kCell, v = (0.56f * x + 0.83f * z) / kCell;
    const int cellX = int(std::floor(u)), cellZ = int(std::floor(v));
    const float radius = mix(2.6f, 4.6f, cellValue(cellX, cellZ, 61)) / kCell;
    const float middleU = float(cellX) + mix(radius, 1 - radius, cellValue(cellX, cellZ, 62));
    const float middleV = float(cellZ) + mix(radius, 1 - radius, cellValue(cellX, cellZ, 63));
    float away = std::hypot(u - middleU, v - middleV) / radius;
    if (away >= 1)
        return {};
    const float middleX = kCell * (0.83f * middleU + 0.56f * middleV), middleZ = kCell * (0.83f * middleV - 0.56f * middleU);
    const float chance = cellValue(cellX, cellZ, 64);
    const bool lone = chance > 0.985f - 0.10f * hump(middleX, middleZ, 25, 455, 130, 100) && middleZ > 90;
    if ((chance > 4.5f * (woodiness(middleX, middleZ) - 0.50f) && !lone) || middleZ < 62 || lakeShape(middleX, middleZ) < 1.3f)
        return {};
    for (const House &house : kVillage)
        if (std::hypot(middleX - house.x, middleZ - house.z) < house.halfLength + 5)
            return {};
    Tree tree;
    tree.shade = cellValue(cellX, cellZ, 65);
    tree.conifer = cellValue(cellX, cellZ, 66) < 0.35f + 0.5f * smoothstep(900, 2600, middleZ);
    tree.height = tree.conifer ? mix(11, 21, tree.shade) : mix(7, 13, tree.shade);
    away = std::min(1.0f, away * (0.80f + 0.4f * noise(1.9f * x, 1.9f * z, 67)));
    tree.above = tree.height * (tree.conifer ? 1 - away : std::sqrt(1 - away * away * 0.9f));
    tree.above *= 0.70f + 0.34f * fractal(x, z, 1.3f, 0.05f, 3, 68);
    return tree;
}

const House *houseAt(float x, float z, float &above)
{
    if (z < 350 || z > 1040)
        return nullptr;
    for (const House &house : kVillage) {
        const float u = std::cos(house.turn) * (x - house.x) + std::sin(house.turn) * (z - house.z);
        const float v = std::cos(house.turn) * (z - house.z) - std::sin(house.turn) * (x - house.x);
        if (std::fabs(u) > house.halfLength || std::fabs(v) > house.halfWidth)
            continue;
        const float slope = std::max(std::fabs(v) / house.halfWidth, house.tower ? std::fabs(u) / house.halfLength : 0.0f);
        above = house.wall + house.roof * (1 - slope);
        return &house;
    }
    return nullptr;
}

struct Place
{
    float height = 0; // of whatever stands there
    float ground = 0;
    float slope = 0;
    Tree tree;
    const House *house = nullptr;
    bool water = false;
};

Place placeAt(float x, float z, float smallest)
{
    Place place;
    place.ground = place.height = groundHeight(x, z, smallest);
    if (place.ground < kLakeLevel && lakeShape(x, z) < 1.3f) {
        place.water = true;
        place.height = kLakeLevel;
        return place;
    }
    float above = 0;
    place.house = houseAt(x, z, above);
    if (!place.house && place.ground < 760 + 190 * noise(x / 130, z / 130, 69)) { // the tree line
        place.tree = treeAt(x, z);
        above = place.tree.above;
    }
    place.height += above;
    return place;
}

const Vector kSun = normalised({-0.74f, 0.44f, -0.16f});

// How much sunlight reaches a point: walks towards the sun in steps that grow with the distance.
float sunlight(float x, float y, float z, float smallest)
{
    float light = 1, way = 1.5f + smallest;
    for (int i = 0; i < 12 && light > 0; ++i, way *= 1.5f) {
        const float sunX = x + kSun.x * way, sunZ = z + kSun.z * way;
        const float over = placeAt(sunX, sunZ, std::max(smallest, 0.3f * way)).height - (y + kSun.y * way);
        light = std::min(light, 1 - smoothstep(-0.03f * way, 0.06f * way + 0.3f, over));
    }
    return light;
}

Vector fieldColour(float x, float z)
{
    // The valley's fields: a rotated grid of uneven cells, each with its own crop and furrows.
    const float u = (0.94f * x + 0.34f * z) / 95 + 0.5f * noise(x / 260, z / 260, 81), v = (0.94f * z - 0.34f * x) / 150;
    const float crop = cellValue(int(std::floor(u)), int(std::floor(v)), 82);
    const float furrow = 0.94f + 0.06f * std::sin(u * 95 * kPi / 2.5f);
    const Vector grass{0.24f, 0.35f, 0.10f}, rape{0.62f, 0.56f, 0.12f}, corn{0.56f, 0.46f, 0.22f}, earth{0.36f, 0.25f, 0.16f},
        clover{0.17f, 0.31f, 0.09f};
    const Vector colour = crop < 0.32f ? grass : crop < 0.50f ? clover : crop < 0.64f ? rape : crop < 0.82f ? corn : earth;
    return colour * (crop > 0.5f ? furrow : 1);
}

// The colour in the scene without air, in linear light.
Vector surfaceColour(float x, float y, float z, float smallest, const Place &place)
{
    const float step = std::max(0.25f, smallest);
    const float fine = fractal(x, z, 6, smallest * 0.5f, 5, 91);
    Vector colour, normal;
    if (place.house) {
        const House &house = *place.house;
        const float up = y - place.ground;
        const float u = std::cos(house.turn) * (x - house.x) + std::sin(house.turn) * (z - house.z);
        const float v = std::cos(house.turn) * (z - house.z) - std::sin(house.turn) * (x - house.x);
        const bool onGable = house.halfLength - std::fabs(u) < 0.6f;
        if (up < house.wall - 0.2f || (onGable && !house.tower && y < place.height - 0.6f)) {
            const float along = house.halfLength - std::fabs(u) > house.halfWidth - std::fabs(v) ? u : v;
            const float side = along == u ? (v > 0 ? 1.0f : -1.0f) : (u > 0 ? 1.0f : -1.0f);
            normal = along == u ? Vector{-std::sin(house.turn) * side, 0.1f, std::cos(house.turn) * side}
                                : Vector{std::cos(house.turn) * side, 0.1f, std::sin(house.turn) * side};
            const float column = along / 3.2f - std::floor(along / 3.2f), row = up / 3.0f - std::floor(up / 3.0f);
            const bool window = column > 0.34f && column < 0.64f && row > 0.34f && row < 0.76f && (!house.tower || row < 0.6f);
            colour = window ? Vector{0.05f, 0.06f, 0.08f} : house.wallColour * (0.9f + 0.1f * fine);
        } else {
            normal = {-std::sin(house.turn) * (v > 0 ? 1.0f : -1.0f), 1.0f, std::cos(house.turn) * (v > 0 ? 1.0f : -1.0f)};
            if (house.tower && std::fabs(u) > std::fabs(v))
                normal = {std::cos(house.turn) * (u > 0 ? 1.0f : -1.0f), 0.7f, std::sin(house.turn) * (u > 0 ? 1.0f : -1.0f)};
            colour = house.roofColour * (0.8f + 0.35f * fine);
        }
        normal = normalised(normal);
    } else {
        const float here = groundHeight(x, z, smallest);
        normal = normalised({here - groundHeight(x + step, z, smallest), step, here - groundHeight(x, z + step, smallest)});
        const float steep = 1 - normal.y;
        const Vector grass = mix(Vector{0.14f, 0.22f, 0.055f}, Vector{0.33f, 0.36f, 0.13f}, fractal(x, z, 45, smallest, 5, 93));
        colour = mix(grass, fieldColour(x, z),
                     smoothstep(230, 330, z) * (1 - smoothstep(1500, 2100, z)) *
                         (1 - smoothstep(0.35f, 0.45f, hump(x, z, 25, 455, 150, 100))));
        if (z < 300) { // blades and flowers, as far away as they can be made out
            const float blade = fractal(3 * x, z, 0.45f, smallest, 3, 95);
            colour = colour * (0.30f + 1.15f * blade * (0.55f + 0.9f * fine));
            const float flower = cellValue(int(std::floor(x * 11)), int(std::floor(z * 4)), 96);
            const float patch = fractal(x, z, 18, 1, 3, 97);
            if (flower > 1.0f - 0.022f * smoothstep(0.40f, 0.75f, patch))
                colour = patch > 0.55f ? Vector{0.80f, 0.76f, 0.62f} : Vector{0.75f, 0.55f, 0.06f};
        }
        const float road = std::fabs(x - 20 - 26 * std::sin(z / 90) - 0.06f * (z - 300));
        if (z > 150 && z < 700)
            colour = mix(Vector{0.58f, 0.52f, 0.42f} * (0.8f + 0.3f * fine), colour, smoothstep(1.6f, 2.6f, road + fine));
        const float height = place.ground;
        const Vector rock = mix(Vector{0.22f, 0.20f, 0.18f}, Vector{0.44f, 0.41f, 0.37f}, fractal(x, z, 160, smallest, 6, 98));
        colour = mix(colour, Vector{0.13f, 0.19f, 0.07f}, smoothstep(3500, 5500, z) * (0.7f + 0.3f * fine));
        colour = mix(colour, rock, std::max(smoothstep(0.16f, 0.34f, steep), smoothstep(560, 900, height + 260 * (fine - 0.5f))));
        const float snow = smoothstep(1000, 1220, height + 420 * (fractal(x, z, 700, smallest, 6, 99) - 0.5f)) *
                           (1 - smoothstep(0.30f, 0.55f, steep));
        colour = mix(colour, Vector{0.92f, 0.94f, 0.98f}, snow);
    }
    float occlusion = 1;
    if (place.tree.height > 0) {
        const Tree &tree = place.tree;
        const float leaf = fractal(x + 0.7f * y, z - 0.7f * y, 1.1f, smallest, 4, 101);
        const Vector needles = mix(Vector{0.035f, 0.085f, 0.035f}, Vector{0.075f, 0.14f, 0.05f}, tree.shade);
        const Vector leaves = mix(Vector{0.09f, 0.17f, 0.03f}, Vector{0.27f, 0.30f, 0.05f}, tree.shade);
        colour = (tree.conifer ? needles : leaves) * (0.05f + 1.9f * leaf);
        // A round crown for the lighting, however rough the visible surface is.
        const float reach = 0.8f;
        const float across = treeAt(x - reach, z).above - treeAt(x + reach, z).above;
        const float deep = treeAt(x, z - reach).above - treeAt(x, z + reach).above;
        normal = normalised({std::clamp(across, -3.0f, 3.0f), 2 * reach, std::clamp(deep, -3.0f, 3.0f)});
        occlusion = 0.35f + 0.65f * std::clamp((y - place.ground) / tree.height, 0.0f, 1.0f);
    }
    const float direct = std::max(0.0f, dot(normal, kSun)) * sunlight(x, y + 0.2f, z, smallest);
    const Vector light =
        Vector{2.15f, 1.95f, 1.60f} * direct + Vector{0.30f, 0.36f, 0.46f} * ((0.6f + 0.4f * normal.y) * occlusion);
    return colour * light;
}

// The sky without haze below the clouds; `up` is the tangent of the elevation.
Vector skyColour(float across, float up)
{
    up = std::max(up, 0.0f);
    Vector colour = mix(Vector{0.46f, 0.62f, 0.82f}, Vector{0.10f, 0.25f, 0.58f}, smoothstep(0, 0.55f, up));
    const float far = 1 / (up + 0.09f);
    const float cloud = fractal(across * far * 1.3f + 11, far * 2.6f, 1.7f, 0.01f, 7, 111);
    const float body = smoothstep(0.52f, 0.74f, cloud);
    const float lit = fractal(across * far * 1.3f + 10.8f, far * 2.6f + 0.12f, 1.7f, 0.01f, 6, 111);
    return mix(colour, mix(Vector{0.62f, 0.65f, 0.70f}, Vector{1.0f, 0.97f, 0.92f}, smoothstep(0.75f, 0.45f, lit) * 0.6f + 0.4f),
               0.85f * body);
}

// Linear light to sRGB samples (IEC 61966-2-1), with a soft shoulder for what is too bright for the picture.
float encoded(float linear)
{
    const float toned = linear < 0.6f ? linear : 0.6f + 0.4f * (1 - std::exp(-(linear - 0.6f) / 0.4f));
    return toned <= 0.0031308f ? 12.92f * toned : 1.055f * std::pow(toned, 1 / 2.4f) - 0.055f;
}

constexpr float kBeta = 1 / 3200.0f;
constexpr Vector kAirlight{kSceneAirlight[0], kSceneAirlight[1], kSceneAirlight[2]};

Vector finished(Vector linear, float transmission)
{
    const Vector clear{encoded(linear.x), encoded(linear.y), encoded(linear.z)};
    return mix(kAirlight, clear, transmission);
}

} // namespace

QImage drawScene(int width, int height, bool haze, std::vector<float> *transmission)
{
    if (width < 1 || height < 1)
        return {};
    // Two by two samples per pixel. Each column is walked from near to far: what rises above everything before it is visible.
    constexpr int kSamples = 2;
    const int rows = height * kSamples;
    const float focal = 0.92f * float(std::max(width, height)) * kSamples;
    const float horizon = 0.43f * float(rows);
    const float eye = groundHeight(0, 0, 0.1f) + 11;
    const float growth = std::max(0.0012f, 1.1f / focal);

    if (transmission)
        transmission->assign(std::size_t(width) * std::size_t(height), 0.0f);
    QImage image(width, height, QImage::Format_RGB32);
    image.bits(); // detaches before the threads write
    uchar *const bits = image.bits();
    const auto stride = std::size_t(image.bytesPerLine());
#pragma omp parallel for schedule(dynamic, 8)
    for (int column = 0; column < width; ++column) {
        std::vector<Vector> sum;
        sum.resize(std::size_t(height));
        const auto add = [&](int row, Vector colour, float clear) {
            const auto y = std::size_t(row / kSamples);
            sum[y] = sum[y] + finished(colour, haze ? clear : 1);
            if (transmission)
                (*transmission)[y * std::size_t(width) + std::size_t(column)] += clear / (kSamples * kSamples);
        };
        for (int sample = 0; sample < kSamples; ++sample) {
            const float across = (float(column * kSamples + sample) + 0.5f - 0.5f * float(width * kSamples)) / focal;
            int row = rows - 1; // the lowest row not yet drawn
            float near = 26, nearHeight = groundHeight(across * near, near, 0.05f);
            const auto rise = [&](int at) { return (horizon - (float(at) + 0.5f)) / focal; };
            for (float far = near * (1 + growth); far < 21000 && row >= 0; far *= 1 + growth) {
                const float smallest = far / focal;
                const Place place = placeAt(across * far, far, smallest);
                while (row >= 0 && eye + rise(row) * far <= place.height) {
                    // Where the ray meets the line from the previous height to this one; a wall is hit at its face.
                    const float below = eye + rise(row) * near - nearHeight, above = place.height - (eye + rise(row) * far);
                    const float part = below <= 0 ? 0.0f : below / (below + above);
                    const float distance = mix(near, far, part);
                    const float y = eye + rise(row) * distance;
                    Vector colour;
                    if (place.water) {
                        const float ripple = 0.02f * (noise(across * far / 3, distance / 9, 121) - 0.5f);
                        colour =
                            mix(Vector{0.05f, 0.09f, 0.10f}, skyColour(across, 0.12f - rise(row) + ripple), 0.62f + 6 * ripple);
                    } else {
                        colour = surfaceColour(across * distance, y, distance, smallest, place);
                    }
                    const float way = distance * std::sqrt(1 + across * across + rise(row) * rise(row));
                    add(row, colour, std::exp(-kBeta * way));
                    --row;
                }
                near = far;
                nearHeight = place.height;
            }
            for (; row >= 0; --row) {
                const float up = std::max(rise(row), 0.0f);
                add(row, skyColour(across, up), std::exp(-0.42f / (up + 0.10f)));
            }
        }
        for (int y = 0; y < height; ++y) {
            const Vector pixel = sum[std::size_t(y)] * (255.0f / (kSamples * kSamples)) + Vector{0.5f, 0.5f, 0.5f};
            const auto value = [](float v) { return int(std::clamp(v, 0.0f, 255.0f)); };
            reinterpret_cast<QRgb *>(bits + std::size_t(y) * stride)[column] =
                qRgb(value(pixel.x), value(pixel.y), value(pixel.z));
        }
    }
    return image;
}
