#pragma once

#include <optional>
#include <vector>

class VImage;

/// How far an estimate is from the truth. Pictures are Rgba with 32-bit samples and have the same size; samples are clamped to
/// 0..1, as in a file, and pixels whose alpha in `truth` is 0.0 are left out. Maps have one float per pixel, row by row; pixels
/// whose true transmission is not a number are left out.

/// Peak signal-to-noise ratio in dB over R, G and B; 99 for equal pictures.
double psnr(const VImage &picture, const VImage &truth);

/// Mean structural similarity of the luminance, -1..1, over all windows without a transparent pixel. Source: Z. Wang, A. Bovik,
/// H. Sheikh, E. Simoncelli, Image Quality Assessment: From Error Visibility to Structural Similarity, 2004, with its constants:
/// Gaussian windows of 11 x 11 with deviation 1.5, K1 0.01, K2 0.03.
double ssim(const VImage &picture, const VImage &truth);

struct MapError
{
    double absolute = 0.0; ///< Mean of |estimate - truth|.
    double bias = 0.0;     ///< Mean of estimate - truth; below 0 the haze is overestimated.
};
MapError mapError(const std::vector<float> &estimate, const std::vector<float> &truth);

/// How well an estimate keeps depth edges; medians over the pixels of the edges.
struct EdgeFigures
{
    double halo = 0.0; ///< Pixels; see edgeFigures.
    /// The estimate's step across an edge divided by the true one. Read it together with the halo, which a smoothed edge lacks.
    double stepKept = 0.0;
};

/// No value if there are no such edges.
///
/// An edge pixel is one around which the true transmission changes by kEdgeStep or more. From it a line goes to each side, along
/// the gradient. A side counts if the truth is level on it for kEdgeReach of the picture's width; its plateau is the median of
/// the estimate over the outer half of the line. The halo is the distance from which the estimate stays within a tenth of the
/// true step of its plateau for three pixels. An edge has the wider halo of its two sides, and is left out unless its hazier side
/// counts; if the clearer side does not, as on a twig, the clearest pixel takes the place of its plateau.
constexpr float kEdgeStep = 0.15f;
constexpr float kEdgeReach = 0.04f;
std::optional<EdgeFigures> edgeFigures(const std::vector<float> &estimate, const std::vector<float> &truth, int width,
                                       int height);
