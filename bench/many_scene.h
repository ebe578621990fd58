#pragma once

#include "bench/many.h"
#include "bench/stage.h"

/// S2 on a plain screen. Its leaves are windows with a bitmap, or buttons.
class ManyScene {
public:
    enum class Leaves { Windows, Buttons };
    explicit ManyScene(const ManyWindows& many, Leaves leaves = Leaves::Windows);

    Stage stage;
    AScreen* screen; // owned by the stage's main window
};
