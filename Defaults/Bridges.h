#pragma once

// The bridges that types of the language, of the standard library and of Foundation get by themselves.
#include "Defaults/AnyBridge.h"               // IWYU pragma: export
#include "Defaults/ArrayBridge.h"             // IWYU pragma: export
#include "Defaults/CollectionBridge.h"        // IWYU pragma: export
#include "Defaults/DictionaryBridge.h"        // IWYU pragma: export
#include "Defaults/NativeBridge.h"            // IWYU pragma: export
#include "Defaults/OptionalBridge.h"          // IWYU pragma: export
#include "Defaults/RangeBridge.h"             // IWYU pragma: export
#include "Defaults/RawRepresentableBridge.h"  // IWYU pragma: export
#include "Defaults/SetBridge.h"               // IWYU pragma: export
#include "Defaults/URLBridge.h"               // IWYU pragma: export
#include "Defaults/UUIDBridge.h"              // IWYU pragma: export
