#!/usr/bin/env bash
# Makes the Debian package from an optimised build; prints where it lies.
set -euo pipefail
# shellcheck source=setup/setup.sh
. "$(dirname "$0")/setup/setup.sh"

ensure_packages play package
build package
# dpkg-deb keeps the folders' permissions, which are the package's own and not this user's.
umask 022
(cd build/package && cpack -G DEB)
