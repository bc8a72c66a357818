#pragma once

#include "core/numeric/Port.h"

#include <cstdint>
#include <functional>

class Form;

/// The windows that the menus open. What they are is none of the frame's business: the program fills in how each is
/// made, and an item whose window nobody makes stays off.
enum class ChildWindow : std::uint8_t { ShipParticulars, HydrostaticData, DeductionMaster, Port, Loading, Discharging };

/// An empty function makes none.
using ChildFactory = std::function<Form *()>;

/// To be filled before the main window is made.
[[nodiscard]] Port<ChildFactory> &ChildFactoryPort(ChildWindow window);
[[nodiscard]] bool HasChildFactory(ChildWindow window);

/// The one live window of its kind, made on first use. Once unloaded it is gone, and the next use makes a new one.
[[nodiscard]] Form &Child(ChildWindow window);
/// The same where it lives, null where it does not.
[[nodiscard]] Form *LoadedChild(ChildWindow window);
