# The target tarnival_options: what every target of this project is compiled with. The engine
# hands it on, so that it reaches all that is built here; the headers of other projects count as
# system headers and stay out of it.
include_guard(GLOBAL)

# Off by default: a newer compiler may find new warnings in a release.
option(TARNIVAL_WERROR "Compiler warnings are errors" OFF)
option(TARNIVAL_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(TARNIVAL_FUZZ "Build for libFuzzer, which clang has" OFF)
option(TARNIVAL_COVERAGE "Count which lines are reached" OFF)

add_library(tarnival_options INTERFACE)
target_compile_options(tarnival_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# g++ 12 takes the assignment of a literal to a std::string for an overlapping copy.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tarnival_options INTERFACE -Wno-restrict)
endif()
if(TARNIVAL_WERROR)
    target_compile_options(tarnival_options INTERFACE -Werror)
endif()
if(TARNIVAL_SANITIZE)
    # Without recovery the first finding ends the program, so that no test can pass with one.
    # With the three checks for null, g++ 12 no longer takes the address of an object for a
    # constant, and the game tables are checked at compile time; AddressSanitizer stops at a
    # null pointer all the same.
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-sanitize=null,nonnull-attribute,returns-nonnull-attribute)
    target_compile_options(tarnival_options INTERFACE ${sanitizers} -fno-omit-frame-pointer)
    target_link_options(tarnival_options INTERFACE ${sanitizers})
    # The instrumented code of the standard library's own headers (<regex>) looks uninitialised to
    # g++ 12. The check build, which is not instrumented, keeps this warning.
    target_compile_options(tarnival_options INTERFACE -Wno-maybe-uninitialized)
endif()
if(TARNIVAL_FUZZ)
    set(sanitizers -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_compile_options(tarnival_options INTERFACE ${sanitizers} -fno-omit-frame-pointer)
    target_link_options(tarnival_options INTERFACE ${sanitizers})
endif()
if(TARNIVAL_COVERAGE)
    target_compile_options(tarnival_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(tarnival_options INTERFACE --coverage)
endif()

# What links Qt is compiled without the functions that the oldest version of Qt counts as deprecated; what a newer
# one has against the rest shows as a warning there.
add_library(tarnival_qt_options INTERFACE)
target_link_libraries(tarnival_qt_options INTERFACE tarnival_options)
# The second is the first's name in Qt 6.4.
target_compile_definitions(tarnival_qt_options INTERFACE
    QT_DISABLE_DEPRECATED_UP_TO=0x060400 QT_DISABLE_DEPRECATED_BEFORE=0x060400)
