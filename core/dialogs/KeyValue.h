#pragma once

#include "ports/Registry.h"

#include <string>

namespace sw {

// Reads one value of the registry into KeyVal: a text as it stands, without
// its end mark; a 4-byte number as "&h" and the hexadecimal codes of its
// bytes from the last to the first, behind what KeyVal held; any other type
// leaves KeyVal as it was. A missing key or value empties KeyVal and gives false.
bool GetKeyValue(Registry& registry, RegistryRoot KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

} // namespace sw
