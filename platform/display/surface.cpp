#include "platform/display/surface.h"

#include "platform/display/canvas.h"
#include "platform/display/ddwin.h"
#include "platform/display/msgbox.h"
#include "platform/media/image_file.h"

namespace {

std::int16_t clampedTo16Bits(int mode)
{
    return static_cast<std::int16_t>(std::clamp<int>(mode, INT16_MIN, INT16_MAX));
}

} // namespace

surface::surface(ddwin* newOwner) : owner(newOwner)
{
    filename = name.GetBuffer();
}

surface::surface(const surface& other)
    : width(other.width), height(other.height), owner(other.owner), image(other.image), name(other.name),
      isOfFile(other.isOfFile), isDropped(other.isDropped)
{
    filename = name.GetBuffer();
}

surface& surface::operator=(const surface& other)
{
    width = other.width;
    height = other.height;
    owner = other.owner;
    image = other.image;
    name = other.name;
    isOfFile = other.isOfFile;
    isDropped = other.isDropped;
    filename = name.GetBuffer();
    return *this;
}

surface::~surface()
{
    while (refs)
        refs->unlink();
}

const ImageRef& surface::getImage()
{
    fetchDropped();
    return image;
}

void surface::loadDropped()
{
    isDropped = false; // a failure is reported only once
    const CString file = name;
    if (ImageRef again = owner->canvas->surfaces.load(file.view()))
        takeFile(std::move(again), file);
    else
        reportNotLoaded(file);
}

int surface::reload()
{
    if (name.IsEmpty())
        return 0;
    ImageRef reloaded = owner ? owner->canvas->surfaces.reload(name.view()) : loadImageFile(name.view());
    if (!reloaded)
        return 0;
    takeFile(std::move(reloaded), CString(name));
    return 1;
}

void surface::setImage(ImageRef newImage, const CString& newName)
{
    image = std::move(newImage);
    isOfFile = false;
    isDropped = false;
    width = image ? static_cast<short>(std::min<int>(image->width, INT16_MAX)) : 0;
    height = image ? static_cast<short>(std::min<int>(image->height, INT16_MAX)) : 0;
    name = newName;
    filename = name.GetBuffer();
    if (image && image->name.empty())
        image->name = name.str();
}

void surface::takeFile(ImageRef pixels, const CString& file)
{
    setImage(std::move(pixels), file);
    isOfFile = true;
}

/// Records a command that draws the current pixels of this bitmap. Requires an owner.
inline DrawCommand& surface::record(DrawOp op)
{
    fetchDropped();
    Canvas& canvas = *owner->canvas;
    DrawCommand& command = canvas.record(op);
    if (image) {
        command.subject = image->id;
        command.colour = image->version;
        command.image = image.get();
        canvas.hold(image);
    }
    return command;
}

void surface::blit(int x, int y, int srcX, int srcY, int w, int h, int srcW, int srcH, IDirectDrawSurface*,
                   int mode)
{
    if (!owner)
        return;
    DrawCommand& command = record(DrawOp::Blit);
    command.mode = clampedTo16Bits(mode);
    command.x = x;
    command.y = y;
    command.w = w;
    command.h = h;
    command.sx = srcX;
    command.sy = srcY;
    command.sw = srcW;
    command.sh = srcH;
}

void surface::blitRows(const PieceRow& first, const PieceRow& second, int side, int length, bool down)
{
    if (!owner || length <= 0 || side <= 0)
        return;
    for (const PieceRow* row : {&first, &second}) {
        DrawCommand& command = record(DrawOp::BlitRow);
        command.flags =
            static_cast<std::uint8_t>((down ? pieceDown : 0) | (row == &first ? pieceAlternates : 0));
        command.mode = -1;
        command.x = row->x;
        command.y = row->y;
        command.w = down ? side : length;
        command.h = down ? length : side;
        command.sx = row->srcX;
        command.sy = 0;
        command.sw = side;
        command.sh = 0;
    }
}

void surface::blit(int x, int y, int w, int h, IDirectDrawSurface* dest, int mode)
{
    blit(x, y, 0, 0, w, h, width, height, dest, mode);
}

void surface::setPixel(int x, int y, unsigned long colour)
{
    fetchDropped();
    if (!image || x < 0 || y < 0 || x >= image->width || y >= image->height)
        return;
    // The pixels are shared with another surface or with a display list that can still be read.
    if (image.use_count() != 1)
        image = copyImage(*image);
    const auto rgb = static_cast<std::uint32_t>(colour & 0xFFFFFF);
    const bool isTransparent = rgb == keyColour && !image->hasAlphaChannel;
    if (isTransparent && image->coverage == Coverage::Opaque)
        image->coverage = Coverage::Masked;
    image->row(y)[x] = isTransparent ? rgb : 0xFF000000 | rgb;
    image->version++;
}

template<>
void tgx::WeakRef<surface>::attach(surface* to)
{
    if (to)
        link(to, to->refs);
}

template<>
void tgx::WeakRef<surface>::detach()
{
    surface* const former = target;
    unlink();
    if (former && !former->refs && former->owner)
        former->owner->letGo(former);
}
