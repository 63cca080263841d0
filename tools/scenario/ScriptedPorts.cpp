#include "tools/scenario/ScriptedPorts.h"

namespace sw::scripted {

ScriptedPorts::ScriptedPorts(std::ostream& out, PictureLoader* realLoader)
    : transcript(out),
      loader(transcript, realLoader), ports{boxes,
                                            dlgPic,
                                            picActual,
                                            loader,
                                            controls,
                                            form,
                                            settings,
                                            files,
                                            exportDialogs,
                                            clipboard,
                                            AppInfo{kScriptedAppPath, "Slicewright", "slicewright"},
                                            jpgCompDialog,
                                            aboutWindow,
                                            shell,
                                            registry,
                                            sysInfo} {}

} // namespace sw::scripted
