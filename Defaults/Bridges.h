#pragma once

// The bridges that types of the language, of the standard library and of Foundation get by themselves.
#include "Defaults/AnyBridge.h"
#include "Defaults/ArrayBridge.h"
#include "Defaults/CollectionBridge.h"
#include "Defaults/DictionaryBridge.h"
#include "Defaults/NativeBridge.h"
#include "Defaults/OptionalBridge.h"
#include "Defaults/RangeBridge.h"
#include "Defaults/RawRepresentableBridge.h"
#include "Defaults/SetBridge.h"
#include "Defaults/URLBridge.h"
#include "Defaults/UUIDBridge.h"
