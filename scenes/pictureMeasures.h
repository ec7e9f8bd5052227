#pragma once

#include <optional>
#include <vector>

class VImage;

/// How far an estimate is from the truth. Pictures are Rgba with 32-bit samples and of one size; samples are clamped to 0..1, as
/// a file would hold them, and pixels whose alpha in `truth` is 0.0 are left out. Maps have one float a pixel, row by row; a true
/// transmission that is not a number is left out.

/// Peak signal-to-noise ratio in dB over R, G and B; 99 for equal pictures.
double psnr(const VImage &picture, const VImage &truth);

/// Mean structural similarity of the luminance, -1..1, over all windows without a transparent pixel. Source: Z. Wang, A. Bovik,
/// H. Sheikh, E. Simoncelli, Image Quality Assessment: From Error Visibility to Structural Similarity, 2004, with its constants:
/// Gaussian windows of 11 x 11 with deviation 1.5, K1 0.01, K2 0.03.
double ssim(const VImage &picture, const VImage &truth);

struct MapError
{
    double absolute = 0.0; ///< Mean of |estimate - truth|.
    double bias = 0.0;     ///< Mean of estimate - truth: below 0 more haze is seen than there is.
};
MapError mapError(const std::vector<float> &estimate, const std::vector<float> &truth);

/// What an estimate makes of depth edges; medians over the edges' pixels.
struct EdgeFigures
{
    double halo = 0.0; ///< Pixels; see edgeFigures.
    double stepKept =
        0.0; ///< The estimate's step across an edge by the true one: an edge that is smoothed away has no halo either.
};

/// Nothing if there are no such edges.
///
/// An edge's pixel is one around which the true transmission steps by kEdgeStep or more. From it a line goes to either side,
/// along the step's gradient. A side counts if the truth stays level on it for kEdgeReach of the picture's width; its plateau is
/// the median of the estimate on the outer half. The halo is the distance behind which the estimate stays for three pixels within
/// a tenth of the true step from its plateau. An edge has the halo of the wider of its two sides, and is left out unless its
/// hazier side counts; where the clearer one does not, as on a twig, the clearest pixel stands for its plateau.
constexpr float kEdgeStep = 0.15f;
constexpr float kEdgeReach = 0.04f;
std::optional<EdgeFigures> edgeFigures(const std::vector<float> &estimate, const std::vector<float> &truth, int width,
                                       int height);
