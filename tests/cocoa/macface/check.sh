#!/usr/bin/env bash
# check.sh TOP BUILD: configures TOP as on a Mac, in the folder BUILD, and has clang compile what is compiled there:
# each #if's other branch, by a Mac's Objective-C, with a standard library like a Mac's and the Audio Toolbox's own
# declarations. Nothing is linked; and what the system does only a Mac can tell.
set -euo pipefail

top=$1 build=$2
clang=$(command -v clang++)
declarations="-I$top/tests/cocoa/macface -nostdinc++ -isystem /usr/lib/llvm-16/include/c++/v1"
appkit="$(gnustep-config --objc-flags | sed 's/-MMD\|-MP\|-I\. \|-O2\|-g \|-fno-strict-aliasing//g; s/-I\//-isystem \//g')"

cmake -S "$top" -B "$build" -G Ninja --log-level=WARNING -DCMAKE_SYSTEM_NAME=Darwin -DCMAKE_OSX_SYSROOT=/ \
    -DCMAKE_BUILD_TYPE=None -DCMAKE_INSTALL_NAME_TOOL=true \
    -DCMAKE_CXX_COMPILER="$clang" -DCMAKE_CXX_COMPILER_WORKS=ON -DCMAKE_CXX_FLAGS="$declarations -Werror" \
    -DCMAKE_OBJCXX_COMPILER="$clang" -DCMAKE_OBJCXX_COMPILER_WORKS=ON \
    -DCMAKE_OBJCXX_FLAGS="$declarations $appkit -idirafter $(gcc -print-file-name=include) -fobjc-runtime=macosx-11.0 -Werror"
cd "$build"
ninja -t targets all | sed -n 's/\.o: .*/.o/p' | xargs ninja
test -f QmR7View.bundle/Contents/Info.plist
