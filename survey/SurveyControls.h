#pragma once

// The controls that both survey windows share, for those who build on SurveyWindow: the maker of this file looks for
// forms in a room of its own only.
#include "ui_SurveyWindow.h"
