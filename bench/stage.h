#pragma once

#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <functional>
#include <string>

/// Returns the colour of a pixel as 0xRRGGBB. 0xFF00FF is transparent.
using PixelAt = std::function<unsigned(int x, int y)>;

/// A temporary data directory, deleted by the destructor.
class Files {
public:
    Files();
    ~Files();
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    void picture(const std::string& name, int width, int height, const PixelAt& pixel) const;
    /// Copies the TrueType font that all scenes use. Throws if it is not installed.
    void font() const;
    void script(const std::string& name, const std::string& bytes) const;

private:
    std::filesystem::path path;
};

/// A main window on a headless host with virtual time, and a screen for the scene.
class Stage {
public:
    Stage(int width, int height);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Files files;
    AMainWin& window() { return *mainWin; }
    /// Adds the scene's screen, which show() opens.
    AScreen* addScreen(const char* backdrop);
    void show();
    void frame();

private:
    AControlsApp app;
    std::unique_ptr<AMainWin> mainWin;
};
