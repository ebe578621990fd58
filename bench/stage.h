#pragma once

#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <functional>
#include <string>

/// A 0xRRGGBB for each pixel of a picture. 0xFF00FF shows nothing.
using PixelAt = std::function<unsigned(int x, int y)>;

/// A data directory that lives as long as the object.
class Files {
public:
    Files();
    ~Files();
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    void picture(const std::string& name, int width, int height, const PixelAt& pixel) const;
    /// Copies the TrueType font that all scenes write with; throws when the machine does not have it.
    void font() const;
    void script(const std::string& name, const std::string& bytes) const;

private:
    std::filesystem::path path;
};

/// A main window on a headless host with virtual time, and a screen to build a scene on.
class Stage {
public:
    Stage(int width, int height);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Files files;
    AMainWin& window() { return *mainWin; }
    /// Adds the scene's screen; show() opens it.
    AScreen* addScreen(const char* backdrop);
    void show();
    void frame();

private:
    AControlsApp app;
    std::unique_ptr<AMainWin> mainWin;
};
