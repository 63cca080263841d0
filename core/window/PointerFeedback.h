#pragma once

namespace sw {

struct Session;

// The pointer moved over the form outside any control.
void Form_MouseMove(Session& session);
// The pointer moved over the picture, at (x, y) in picture pixels.
void picActual_MouseMove(Session& session, float x, float y);

} // namespace sw
