// A turn that programs take with a file.
#include "engine/outside/FileTurn.h"

#include <cerrno>

#include <fcntl.h>

// A link would lead the lock out of the folder, to a file of who knows whom.
FileTurn::FileTurn(const std::string& path) : file_(mDisk::Open(path, O_RDWR | O_CREAT | O_NOFOLLOW)) {
    if (!file_.Valid()) {
        fault_ = mDisk::Cause(errno);
        return;
    }
    busy_ = mDisk::Lock(file_.Number()) == mDisk::Turn::Busy;
    if (busy_) fault_ = "Another program keeps the file locked";
}
