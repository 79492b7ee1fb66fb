// Compiled once to save time; every file still includes what it uses.
#pragma once

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <comutil.h>
#include <msxml6.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <string>
#include <vector>
