#!/usr/bin/env bash
# Builds the Debian package in build-package/ and says where it lies.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/common.sh

install_packages "${build_packages[@]}" dpkg-dev file
# As Debian builds its own, and without the paths of this machine.
hardening="-O2 -fstack-protector-strong -D_FORTIFY_SOURCE=2 -ffile-prefix-map=$PWD=."
configure build-package -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=$hardening" \
    "-DCMAKE_EXE_LINKER_FLAGS=-Wl,-z,relro,-z,now" -DCMAKE_INSTALL_PREFIX=/usr
build build-package programs
(cd build-package && rm -f ./*.deb && cpack >cpack.log 2>&1) || {
    cat build-package/cpack.log
    exit 1
}
say "Made: $(ls build-package/*.deb)"
