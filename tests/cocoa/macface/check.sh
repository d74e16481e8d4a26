#!/usr/bin/env bash
# check.sh TOP: whether what a Mac takes of the sources is right in the eyes of clang: each #if's other branch, the
# runtime of a Mac, the Audio Toolbox's own declarations. Nothing is made; only a Mac can tell what the system does.
set -euo pipefail

cd "$1"
read -ra flags < <(gnustep-config --objc-flags | sed 's/-MMD\|-MP\|-I\. \|-fno-strict-aliasing//g; s/-I\//-isystem \//g')
{
    printf '%s\n' cocoa/*.mm platform/cocoa/*.mm
    grep -l 'audio_toolbox\.h\|panel_view\.h' host/*.cpp
} | xargs -P "$(nproc)" -n 1 clang++ -x objective-c++ -std=gnu++20 -fsyntax-only -fobjc-runtime=macosx-11.0 \
    -I tests/cocoa/macface -I . "${flags[@]}" -idirafter "$(gcc -print-file-name=include)" \
    -Wall -Wextra -Wshadow -Wconversion -Werror -Wno-unused-command-line-argument
