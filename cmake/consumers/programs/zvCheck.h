#ifndef ZV_CHECK_H
#define ZV_CHECK_H

#include <cstdio>

/// What the programs in this folder have in common: each uses the operations of a few classes in the shortest
/// forms in which a program can write them. Most of that only has to compile; the exit code says whether what
/// could be misread was understood.
inline int failures = 0;

inline void checkAt(bool holds, const char* what, const char* file, int line) {
    if (!holds) {
        std::printf("%s:%d: %s\n", file, line, what);
        ++failures;
    }
}

#define ZV_CHECK(condition) checkAt((condition), #condition, __FILE__, __LINE__)

/// Uses a result that does not matter.
template <typename... Results>
void use(const Results&...) {}

#endif
