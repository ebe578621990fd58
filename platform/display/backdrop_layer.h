#pragma once

#include "platform/display/damage.h"
#include "platform/display/rasteriser.h"
#include "platform/media/image.h"

/// The shown backdrop and the picture to come. What is marked dirty is copied from the one into the other by
/// restore, so that a wipe spreads the new picture piece by piece. While the whole screen shows one picture
/// nothing is copied at all: the picture itself is what is shown.
class BackdropLayer {
public:
    void setPlain(std::uint32_t colour);
    /// source is kept, and stretched to the screen's size.
    void setPicture(ImageRef source);
    /// The picture to come fills a screen of a new size at once.
    void resize(int newWidth, int newHeight);

    void markDirty(const Box& box);
    /// The next restore draws all of the screen anew, changed or not.
    void markAll() { isForced = true; }
    /// Copies what is dirty and marks what that changes.
    void restore(Damage& damage);

    BackdropPixels shown() const
    {
        return {shownPicture.isPlain ? nullptr : shownPicture.image.get(), shownPicture.colour};
    }
    /// The picture to come at the screen's size, a plain one too.
    const ImageRef& comingImage() const { return coming.image; }

private:
    struct Picture {
        ImageRef image;
        bool isPlain = true;
        std::uint32_t colour = 0;
        bool isSameAs(const Picture& other) const
        {
            return isPlain ? other.isPlain && colour == other.colour : image == other.image;
        }
    };
    void fit();
    void copyInto(const Box& box);

    ImageRef source; // of the picture to come, at its own size; null for a plain one
    Picture coming;
    Picture shownPicture;
    bool ownsShown =
        false; // the shown image is this layer's own mixture of an older picture and the one to come
    bool isForced = false;
    std::vector<Box> dirty;
    int width = 0;
    int height = 0;
};
