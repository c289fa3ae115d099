// How long a test goes on: by default as long as a usual run of all tests allows, by hand as long as one
// likes.
#pragma once

#include <cstdlib>

inline int FromEnvironment(const char* name, int usual) {
    const char* wanted = std::getenv(name);
    return wanted ? std::atoi(wanted) : usual;
}
