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
                                            AppInfo{kScriptedAppPath, "Slicewright", "slicewright",
                                                    ""},
                                            jpgCompDialog,
                                            aboutWindow,
                                            shell,
                                            registry,
                                            sysInfo,
                                            userFolders} {}

Ports ScriptedPorts::WithForm(FormWindow& other) const {
    return Ports{ports.boxes,         ports.dlgPic,    ports.picActual, ports.loader,
                 ports.controls,      other,           ports.settings,  ports.files,
                 ports.exportDialogs, ports.clipboard, ports.app,       ports.jpgCompDialog,
                 ports.aboutWindow,   ports.shell,     ports.registry,  ports.sysInfo,
                 ports.userFolders};
}

} // namespace sw::scripted
