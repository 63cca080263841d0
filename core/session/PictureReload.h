#pragma once

namespace sw {

struct Session;

// Loads LastPicture into picActual again, which wipes every stroke. When the
// file can no longer be read the user is told, nothing changes, and the
// answer is false: the caller then keeps its lines as they are.
bool ReloadPicture(Session& session);

} // namespace sw
