#pragma once

#include "platform/display/damage.h"
#include "platform/display/rasteriser.h"
#include "platform/media/image.h"

/// The backdrop on the screen and the picture that replaces it. restore copies the dirty boxes from the new
/// picture to the shown one, so a wipe reveals the new picture piece by piece. When the whole screen shows
/// one picture, that picture is used directly and nothing is copied.
class BackdropLayer {
public:
    void setPlain(std::uint32_t colour);
    /// Sets the new picture. source is kept and stretched to the screen's size.
    void setPicture(ImageRef source);
    /// Sets the screen's size and shows the new picture on all of it at once.
    void resize(int newWidth, int newHeight);

    void markDirty(const Box& box);
    /// Makes the next restore redraw the whole screen, changed or not.
    void markAll() { isForced = true; }
    /// Copies the dirty boxes and marks in damage what that changes.
    void restore(Damage& damage);

    BackdropPixels shown() const
    {
        return {shownPicture.isPlain ? nullptr : shownPicture.image.get(), shownPicture.colour};
    }
    /// Returns the new picture at the screen's size, even if it is plain.
    const ImageRef& newImage() const { return newPicture.image; }

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

    ImageRef source; // the new picture at its own size; null for a plain one
    Picture newPicture;
    Picture shownPicture;
    bool ownsShownImage = false; // the shown image is a private mixture of an older picture and the new one
    bool isForced = false;
    std::vector<Box> dirty;
    int width = 0;
    int height = 0;
};
