#include "PictureRenderer.h"

class PictureRenderer::Worker
{
};
PictureRenderer::PictureRenderer(QObject *parent) : QObject(parent) {}
PictureRenderer::~PictureRenderer() = default;
void PictureRenderer::request(const PictureRequest &) {}
QImage PictureRenderer::picture(const PictureRequest &)
{
    return {};
}
