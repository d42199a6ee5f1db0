#ifndef ZV_FAULTY_MEMORY_H
#define ZV_FAULTY_MEMORY_H

#include <gtest/gtest.h>

#include <new>

/// The operator new of the programs that link this: any allocation can be made to fail.
namespace zvFaultyMemory {

/// How many allocations succeed from now on before all fail; negative: none fails.
void allow(int allocations);
/// Whether an allocation was refused since allow().
bool hasFailed();
/// Allocations that were not given back yet.
long living();

/// Calls `attempt` once for every allocation that it makes, letting that one and all behind it fail, and once
/// more without a fault. Each time `make` makes the object for it before, and `check(object, faultless)`
/// looks at it afterwards. Nothing but std::bad_alloc may come out of it, and nothing may leak.
template <typename Make, typename Attempt, typename Check>
void forEveryFault(Make make, Attempt attempt, Check check) {
    bool faultless = false;
    for (int allowed = 0; !faultless; ++allowed) {
        const long before = living();
        {
            auto object = make();
            allow(allowed);
            try {
                attempt(object);
            } catch (const std::bad_alloc&) {
                EXPECT_TRUE(hasFailed());
            } catch (...) {
                ADD_FAILURE() << "something else than std::bad_alloc after " << allowed << " allocations";
            }
            faultless = !hasFailed();
            allow(-1);
            check(object, faultless);
        }
        EXPECT_EQ(living(), before) << "a leak after " << allowed << " allocations";
    }
}

}  // namespace zvFaultyMemory

#endif
