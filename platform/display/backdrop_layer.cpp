#include "platform/display/backdrop_layer.h"

#include "platform/display/blit_rows.h"

namespace {

// If there are more marks than this between two restores, they are replaced by the box around them.
constexpr std::size_t maxMarks = 256;

ImageRef plainImage(int width, int height, std::uint32_t colour)
{
    ImageRef image = makeImage(width, height);
    if (colour != 0 && image->height > 0)
        fillPixels(image->row(0), image->pitch, image->width, image->height, 0xFF000000 | colour);
    return image;
}

// Scales with the nearest pixel. All pixels become opaque, because there is nothing behind a backdrop.
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
    if (!source && newPicture.isPlain && newPicture.colour == colour && newPicture.image)
        return;
    source.reset();
    newPicture.colour = colour;
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
    shownPicture = newPicture;
    ownsShownImage = false;
    dirty.assign(1, {0, 0, width, height}); // applies also to a picture set before the first restore
}

void BackdropLayer::fit()
{
    newPicture.isPlain = !source;
    if (!source)
        newPicture.image = plainImage(width, height, newPicture.colour);
    else if (source->width == width && source->height == height && source->coverage == Coverage::Opaque)
        newPicture.image = source;
    else
        newPicture.image = stretched(*source, width, height);
}

void BackdropLayer::markDirty(const Box& box)
{
    const Box part = intersection(box, {0, 0, width, height});
    if (part.isEmpty())
        return;
    if (dirty.size() < maxMarks) {
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
        if (!shownPicture.isSameAs(newPicture))
            damage.markAll();
        shownPicture = newPicture;
        ownsShownImage = false;
    } else if (!shownPicture.isSameAs(newPicture)) {
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
    if (!ownsShownImage) {
        shownPicture.image = shownPicture.isPlain ? plainImage(width, height, shownPicture.colour)
                                                  : copyImage(*shownPicture.image);
        shownPicture.isPlain = false;
        ownsShownImage = true;
    }
    Image& image = *shownPicture.image;
    copyPixels({image.row(box.y0) + box.x0, image.pitch, newPicture.image->row(box.y0) + box.x0,
                newPicture.image->pitch, box.width(), box.height()});
}
