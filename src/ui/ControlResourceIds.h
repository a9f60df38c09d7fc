#pragma once

// Resource ids of the custom controls, read by the C++ code and by the resource compiler (plain
// defines only).

// The slider's built-in bitmap (res/ui/Slider.bmp).
#define IDB_ORVA_SLIDER 6201
