// Steps of which none is left out.
#pragma once

#include <functional>
#include <initializer_list>

/// Takes every step, whatever fault the others meet; the first fault is let out at the end.
void TakeAll(std::initializer_list<std::function<void()>> steps);
