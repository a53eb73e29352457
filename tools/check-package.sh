#!/usr/bin/env bash
# Checks the package as a stranger uses it: installs it, unpacks its ZIP, builds samples/minimal in an empty folder
# against both, looks at the running program, and makes sure that hosts get what they need, nothing else, and a clear
# refusal where they cannot link.
#
#   tools/check-package.sh       works in build/package; builds no test program, only the library and the gallery
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

release=$quor_build/mingw-release
work=$quor_build/package
prefix=$work/prefix
unpacked=$work/unpacked
package_dir=lib/cmake/QuorUiCtrl

# fail NAME MESSAGE: shows the log of a step that failed and ends.
fail() {
    cat "$work/$1.log" >&2
    die "$2"
}

install_package() {
    local version zip
    "$quor_root/tools/build.sh" mingw-release QuorUiCtrl QuorFxMain gallery
    rm -rf "$work"
    mkdir -p "$work"
    cmake --install "$release" --strip --prefix "$prefix" >"$work/install.log" 2>&1 ||
        fail install "installing failed"
    say "installed: $(find "$prefix" -type f | wc -l) files, $(du -sk "$prefix" | cut -f1) KiB"

    (cd "$release" && cpack -B "$work/zip") >"$work/cpack.log" 2>&1 || fail cpack "cpack failed"
    version=$(sed -n 's/^project(QuorUiCtrl VERSION \([0-9.]*\).*/\1/p' "$quor_root/CMakeLists.txt")
    zip=$work/zip/QuorUiCtrl-$version-mingw-w64-x86_64.zip
    [[ -f $zip ]] || die "cpack made no ${zip##*/}"
    mkdir "$unpacked"
    (cd "$unpacked" && cmake -E tar xf "$zip" && mv QuorUiCtrl-*/* . && rmdir QuorUiCtrl-*)
    say "packed: ${zip##*/}, $(($(stat -c %s "$zip") / 1024)) KiB"
}

# Both are the same tree; it holds what hosts need, no private header, and no path of this machine.
check_content() {
    local file
    diff <(cd "$prefix" && find . -type f | sort) <(cd "$unpacked" && find . -type f | sort) ||
        die "the ZIP does not hold what is installed"
    for file in bin/{QuorUiCtrl,QuorFx,libstdc++-6,libgcc_s_seh-1,libwinpthread-1}.dll bin/gallery.exe \
        bin/data/{elements.csv,countries.csv,README.md} lib/lib{QuorUiCtrl.dll,QuorFx.dll,QuorFxMain}.a \
        include/QuorUiCtrl/{grid/{TGGrid,TGTreeGrid},treedrag/CTreeCtrlDrag,undo/TGUndoStack,controls/CGridListCtrl}.h \
        include/QuorUiCtrl/propgrid/CMFCPropertyGridCtrlEx.h include/QuorFx/afxwin.h \
        share/licenses/QuorUiCtrl/LICENSE $package_dir/{QuorUiCtrlConfig,mingw-w64}.cmake; do
        [[ -s $prefix/$file ]] || die "the package lacks $file"
    done
    for file in grid/window/GridLayout.h grid/model/GridStructure.h rules/ListGeometry.h treedrag/TreeWatch.h \
        undo/UndoHistory.h; do
        [[ ! -e $prefix/include/QuorUiCtrl/$file ]] || die "the package has the private header $file"
    done
    ! grep -rlF "$quor_root" "$prefix" || die "these files name a path of this machine"
    say "content: $(find "$prefix/include/QuorUiCtrl" -name '*.h' | wc -l) public headers, the same in the ZIP"
}

# The first block of README in the language.
readme_block() {
    sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$quor_root/README.md" | sed -n '2,/^```/p' | sed '$d'
}

# The files themselves begin with a comment that says what they are.
check_readme() {
    diff <(readme_block cpp) <(sed 1d "$quor_root/samples/minimal/Minimal.cpp") ||
        die "the host in README is not samples/minimal/Minimal.cpp"
    diff <(readme_block cmake) <(sed 1d "$quor_root/samples/minimal/CMakeLists.txt") ||
        die "the build file in README is not samples/minimal/CMakeLists.txt"
    say "README: its host and its build file are those of samples/minimal"
}

# configure_host NAME [OPTIONS...]: configures the host in $work/NAME.
configure_host() {
    local name=$1
    shift
    cmake -G Ninja -S "$work/$name" -B "$work/$name/build" -DCMAKE_BUILD_TYPE=Release "$@" >"$work/$name.log" 2>&1
}

build_host() {
    configure_host "$@" && cmake --build "$work/$1/build" >>"$work/$1.log" 2>&1
}

# build_minimal NAME OPTIONS...: copies the sample into an empty folder and builds it there.
build_minimal() {
    local name=$1
    shift
    cp -r "$quor_root/samples/minimal" "$work/$name"
    build_host "$name" "$@" || fail "$name" "$name does not build"
    [[ -f $work/$name/build/QuorUiCtrl.dll && -f $work/$name/build/libstdc++-6.dll ]] ||
        die "$name has no DLLs beside its program"
}

# A tool chain that lets packages be found in its own folder only, as many do: the host names the package's folder.
check_minimal_hosts() {
    local began
    cat >"$work/strict.cmake" <<'FILE'
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
FILE
    build_minimal minimal-strict --toolchain "$work/strict.cmake" -D"QuorUiCtrl_DIR=$prefix/$package_dir"
    say "minimal: builds with a tool chain of the host, by QuorUiCtrl_DIR"
    build_minimal minimal-prefix --toolchain "$quor_root/cmake/mingw-w64.cmake" -D"CMAKE_PREFIX_PATH=$prefix"
    say "minimal: builds with the prefix in CMAKE_PREFIX_PATH"
    began=$SECONDS
    build_minimal minimal-zip --toolchain "$unpacked/$package_dir/mingw-w64.cmake"
    say "minimal: builds from the ZIP with the tool chain file in it, in $((SECONDS - began)) s"
}

# What only a painted grid has: three row lines of one colour at one distance (two planets and the new row), and the blue
# mark of the new row, an icon out of the DLL (darker than the blue of themed buttons). Prints them when they are there.
painted_grid() {
    convert "$1" -depth 8 txt:- | awk '
        {
            split($1, place, /[,:]/)
            split($2, light, /[(),]/)
            colour = $3
            if (!((place[2], colour) in width)) rows[colour] = rows[colour] " " place[2]
            width[place[2], colour]++
            if (light[4] > light[2] + 40 && light[4] < 200) blue++
        }
        END {
            for (colour in rows) {
                lines = split(rows[colour], row, " ")
                found = 0
                for (i = 1; i <= lines; i++)
                    if (width[row[i], colour] >= 200 && width[row[i], colour] <= 300) line[++found] = row[i]
                if (found == 3 && line[3] - line[2] == line[2] - line[1] && blue >= 20) {
                    printf "row lines at %d, %d, %d, %d blue pixels", line[1], line[2], line[3], blue
                    exit 0
                }
            }
            exit 1
        }'
}

# Runs the host and waits until its picture shows the grid.
look_at() {
    local name=$1 found='' program picture=$work/$1.png deadline=$((SECONDS + 120))
    "$(wine_loader)" "$work/$name/build/minimal.exe" </dev/null >"$work/$name-run.log" 2>&1 &
    program=$!
    while [[ -z $found ]]; do
        kill -0 "$program" 2>/dev/null || { cat "$work/$name-run.log" >&2 && die "$name ended by itself"; }
        [[ $SECONDS -lt $deadline ]] || die "$name shows no grid: ${picture#"$quor_root"/}"
        import -silent -window root "$picture"
        found=$(painted_grid "$picture") || sleep 0.2
    done
    wineserver -k || true
    wait "$program" 2>/dev/null || true
    say "minimal: runs; grid with $found, $(identify -format '%k' "$picture") colours"
}

check_running() {
    set_wine_environment
    WINEPREFIX=$("$quor_root/tools/wine-prefix.sh" package)
    export WINEPREFIX
    trap end_own_session EXIT
    start_own_display 800x600x24
    look_at minimal-zip
}

# A host with strict warnings of its own that includes every public header.
check_strict_host() {
    mkdir "$work/strict-host"
    (cd "$prefix/include/QuorUiCtrl" && find . -name '*.h' | sort | sed 's|^\./\(.*\)|#include "\1"|') \
        >"$work/strict-host/Headers.cpp"
    cat >"$work/strict-host/CMakeLists.txt" <<'FILE'
cmake_minimum_required(VERSION 3.25)
project(strict LANGUAGES CXX RC)
find_package(QuorUiCtrl REQUIRED)
add_library(strict OBJECT Headers.cpp)
target_compile_options(strict PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
target_link_libraries(strict PRIVATE QuorUiCtrl::QuorUiCtrl)
FILE
    build_host strict-host --toolchain "$prefix/$package_dir/mingw-w64.cmake" ||
        fail strict-host "the public headers do not compile without warnings"
    say "headers: all public headers compile in a host that makes warnings errors"
}

# The sources as a subproject: only the library is configured, and the host's own sources get no warning flag.
check_subproject() {
    local targets command
    mkdir "$work/subproject"
    cp "$quor_root"/samples/minimal/{Minimal.cpp,Minimal.rc,Minimal.manifest,resource.h} "$work/subproject"
    cat >"$work/subproject/CMakeLists.txt" <<FILE
cmake_minimum_required(VERSION 3.25)
project(subproject LANGUAGES CXX RC)
add_subdirectory("$quor_root" quor)
find_package(QuorUiCtrl 1.0 REQUIRED)
add_executable(host WIN32 Minimal.cpp Minimal.rc)
target_link_libraries(host PRIVATE QuorUiCtrl::QuorUiCtrl)
FILE
    configure_host subproject --toolchain "$quor_root/cmake/mingw-w64.cmake" ||
        fail subproject "a host with the sources as a subproject is not configured"
    targets=$(ninja -C "$work/subproject/build" -t targets all | sed -n 's/^\([^/:]*\): phony$/\1/p')
    ! grep -Ex '.*_test|gtest|bench|gallery|minimal' <<<"$targets" || die "a host gets these targets of ours"
    command=$(ninja -C "$work/subproject/build" -t commands CMakeFiles/host.dir/Minimal.cpp.obj | grep 'Minimal\.cpp')
    ! grep -oE -- ' -(W[^ ]*|pedantic[^ ]*)' <<<"$command" || die "a host gets these warning flags of ours"
    ninja -C "$work/subproject/build" CMakeFiles/host.dir/Minimal.cpp.obj >>"$work/subproject.log" 2>&1 ||
        fail subproject "a host with the sources as a subproject does not compile"
    say "subproject: no tests, samples or benchmarks, no warning flags; the host compiles"
}

# refused NAME TEXT [SETTINGS...]: a host with these settings is told TEXT in one line.
refused() {
    local name=refused-$1 text=$2 setting
    shift 2
    mkdir "$work/$name"
    {
        echo 'cmake_minimum_required(VERSION 3.25)'
        echo "project($name LANGUAGES NONE)"
        for setting; do echo "set($setting)"; done
        echo 'find_package(QuorUiCtrl REQUIRED)'
    } >"$work/$name/CMakeLists.txt"
    ! configure_host "$name" -D"QuorUiCtrl_DIR=$prefix/$package_dir" || die "$name was not refused"
    # CMake breaks long lines.
    tr -s '\n ' ' ' <"$work/$name.log" | grep -qF "$text" || fail "$name" "$name is not told: $text"
    say "refused: $text"
}

# Definitions that change the layout of objects are refused by the headers, with nothing else to read.
refused_definition() {
    local definition=$1 name=refused-$1
    cp -r "$quor_root/samples/minimal" "$work/$name"
    ! build_host "$name" --toolchain "$prefix/$package_dir/mingw-w64.cmake" -D"CMAKE_CXX_FLAGS=-D$definition" ||
        die "a host with $definition was not refused"
    [[ $(grep -c 'error:' "$work/$name.log") -eq 1 ]] || fail "$name" "a host with $definition gets no single error"
    grep -q "built without $definition: remove" "$work/$name.log" || fail "$name" "a host with $definition is not told so"
    say "refused: $(grep -o 'QuorUiCtrl was built.*' "$work/$name.log" | head -n 1 | tr -d '"')"
}

check_refusals() {
    local windows=(WIN32\ TRUE CMAKE_SYSTEM_NAME\ Windows)
    refused system "the host is configured for Linux"
    refused 32bit "this package is 64-bit" "${windows[@]}" "MINGW TRUE" "CMAKE_SIZEOF_VOID_P 4"
    refused msvc "the host's compiler is MSVC: use mingw-w64's g++" "${windows[@]}" "MSVC TRUE" \
        "CMAKE_SIZEOF_VOID_P 8" "CMAKE_CXX_COMPILER_ID MSVC"
    refused_definition _GLIBCXX_DEBUG
    refused_definition _DEBUG
}

main() {
    refuse_options "$@"
    [[ $# == 0 ]] || die "takes no arguments"
    "$quor_root/tools/setup.sh"
    check_readme
    install_package
    check_content
    check_minimal_hosts
    check_running
    check_strict_host
    check_subproject
    check_refusals
    say "the package is good"
}

main "$@"
