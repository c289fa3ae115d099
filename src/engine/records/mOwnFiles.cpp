// Telling the program's own files from others.
#include "engine/records/mOwnFiles.h"

#include <string_view>
#include <utility>
#include <vector>

#include "engine/records/cScore.h"
#include "engine/state/cData.h"

namespace {

/// A path's folder, with the separator at its end, and what stands behind it.
std::pair<std::string, std::string> Parts(const std::string& path) {
    const auto separator = path.rfind(gData->Layer().Files.Separator());
    if (separator == std::string::npos) return {"", path};
    return {path.substr(0, separator + 1), path.substr(separator + 1)};
}

/// Whether a path leads into a folder, by whatever ways, to a name that begins and ends so.
bool LeadsTo(const std::string& path, const std::string& folder, std::string_view begin,
             std::string_view end) {
    const auto [its, name] = Parts(path);
    return name.starts_with(begin) && name.ends_with(end) && gData->Layer().Files.Same(its, folder);
}

/// Whether a file is one that this program keeps itself, or would take for one.
bool IsOwn(const std::string& path) {
    const FileSystem& files = gData->Layer().Files;
    const std::string folder = gData->AppDir();
    const auto [favFolder, favourites] = Parts(cScore::FavFileName());
    if (LeadsTo(path, folder, "", cScore::Ending) || LeadsTo(path, folder, favourites, "")) return true;
    // Through a link, which has another name.
    std::vector<std::string> names;
    (void)files.List(folder, names);
    for (const std::string& name : names) {
        if ((name.ends_with(cScore::Ending) || name == favourites) && files.Same(path, folder + name))
            return true;
    }
    const std::string store = gData->Layer().Settings.Path(gData->ProdName());
    if (store.empty()) return false;
    const auto [storeFolder, storeName] = Parts(store);
    return LeadsTo(path, storeFolder, storeName, "") || files.Same(path, store);
}

}  // namespace

namespace mOwnFiles {

FileError WhyNotReplaced(const std::string& path) {
    if (IsOwn(path)) return "It belongs to the program itself";
    return gData->Layer().Files.Protection(path);
}

std::optional<std::string> AskTarget(const std::string& name, const std::string& filter,
                                     const std::string& what) {
    Forms& forms = gData->Layer().Forms;
    for (;;) {
        std::optional<std::string> file = forms.AskSaveFile(name, filter);
        if (!file || file->empty()) return std::nullopt;
        const FileError fault = WhyNotReplaced(*file);
        if (!fault) return file;
        forms.InformCritical(what + " not written to " + *file + ": " + *fault);
    }
}

}  // namespace mOwnFiles
