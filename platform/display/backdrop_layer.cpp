#include "platform/display/backdrop_layer.h"

#include "platform/display/blit_rows.h"

namespace {

// More marks than this between two restores become the box around them all.
constexpr std::size_t mostMarks = 256;

ImageRef plainImage(int width, int height, std::uint32_t colour)
{
    ImageRef image = makeImage(width, height);
    if (colour != 0 && image->height > 0)
        fillPixels(image->row(0), image->pitch, image->width, image->height, 0xFF000000 | colour);
    return image;
}

// The nearest pixel; a backdrop has nothing under it, so every pixel is opaque.
ImageRef stretched(const Image& source, int width, int height)
{
    ImageRef image = makeImage(width, height);
    if (source.width == 0 || source.height == 0)
        return image;
    image->name = source.name;
    for (int y = 0; y < image->height; y++) {
        const std::uint32_t* from = source.row(static_cast<int>(std::int64_t(y) * source.height / height));
        std::uint32_t* to = image->row(y);
        for (int x = 0; x < image->width; x++)
            to[x] = 0xFF000000 | from[std::int64_t(x) * source.width / width];
    }
    return image;
}

} // namespace

void BackdropLayer::setPlain(std::uint32_t colour)
{
    if (!source && coming.isPlain && coming.colour == colour && coming.image)
        return;
    source.reset();
    coming.colour = colour;
    fit();
}

void BackdropLayer::setPicture(ImageRef newSource)
{
    if (source == newSource)
        return;
    source = std::move(newSource);
    fit();
}

void BackdropLayer::resize(int newWidth, int newHeight)
{
    width = newWidth;
    height = newHeight;
    fit();
    shownPicture = coming;
    ownsShown = false;
    dirty.assign(1, {0, 0, width, height}); // also for a picture that is named before the first restore
}

void BackdropLayer::fit()
{
    coming.isPlain = !source;
    if (!source)
        coming.image = plainImage(width, height, coming.colour);
    else if (source->width == width && source->height == height && source->coverage == Coverage::Opaque)
        coming.image = source;
    else
        coming.image = stretched(*source, width, height);
}

void BackdropLayer::markDirty(const Box& box)
{
    const Box part = intersection(box, {0, 0, width, height});
    if (part.isEmpty())
        return;
    if (dirty.size() < mostMarks) {
        dirty.push_back(part);
        return;
    }
    Box all = part;
    for (const Box& mark : dirty)
        all = hull(all, mark);
    dirty.assign(1, all);
}

void BackdropLayer::restore(Damage& damage)
{
    const Box screen{0, 0, width, height};
    const bool isWhole = isForced || std::any_of(dirty.begin(), dirty.end(),
                                                 [&](const Box& mark) { return mark.contains(screen); });
    if (isForced)
        damage.markAll();
    if (isWhole) {
        if (!shownPicture.isSameAs(coming))
            damage.markAll();
        shownPicture = coming;
        ownsShown = false;
    } else if (!shownPicture.isSameAs(coming)) {
        for (const Box& mark : dirty) {
            copyInto(mark);
            damage.mark(mark);
        }
    }
    isForced = false;
    dirty.clear();
}

void BackdropLayer::copyInto(const Box& box)
{
    if (!ownsShown) {
        shownPicture.image = shownPicture.isPlain ? plainImage(width, height, shownPicture.colour)
                                                  : copyImage(*shownPicture.image);
        shownPicture.isPlain = false;
        ownsShown = true;
    }
    Image& image = *shownPicture.image;
    copyPixels({image.row(box.y0) + box.x0, image.pitch, coming.image->row(box.y0) + box.x0,
                coming.image->pitch, box.width(), box.height()});
}
