// The mouse pointer of the whole screen.
#pragma once

namespace quartela {

enum class PointerShape { Normal = 0, Hourglass = 11 };

// Sets the shape. Setting it again to the same shape changes nothing: calls do not stack, one call
// with Normal always brings the normal pointer back.
void setScreenPointer(PointerShape shape);

// The shape that was set last; Normal at the start.
PointerShape screenPointer();

}  // namespace quartela
