#pragma once

namespace sw::scripted {

class ScenarioRunner;

// The script commands of the window, and the wiring of the events the
// scripted form raises into the logic:
//   screen W H              the screen's size in twips
//   resize W H              the user drags the window to this outer size
//   move LEFT TOP           the user moves the window on the screen
//   windowstate 0|1|2       the user restores, minimises or maximises it
//   scroll h|v VALUE        the user moves a bar to this value
//   drag h|v VALUE...       the user drags a bar's thumb through these values
//   layout [NAME...]        prints the form's and its controls' geometry, or
//                           only that of the ones named
//   chatter off|form|on     leaves out (or shows again) what the layout writes when
//                           the form changes size or place: the form's sizes,
//                           Form_Resize and all it does, the bars and the corner;
//                           "form" shows the form's own size, place and state
//                           writes and refreshes and leaves out the rest
void AddWindowCommands(ScenarioRunner& runner);

} // namespace sw::scripted
