#ifndef ZV_JVM_OPTION_LIST_H
#define ZV_JVM_OPTION_LIST_H

#include <jni.h>

#include "zvMalloc.h"

/// The options that a Java virtual machine is started with. A failed allocation ends the process.
class zvJvmOptionList {
public:
    zvJvmOptionList() = default;
    zvJvmOptionList(const zvJvmOptionList&) = delete;
    zvJvmOptionList& operator=(const zvJvmOptionList&) = delete;
    ~zvJvmOptionList();

    /// Appends an option; the list owns its text.
    void add(zvMalloc::Array<char> option, void* extraInformation = nullptr);
    /// Appends the class path, in the form that the system's own list of folders has.
    void addClassPath(const char* classPath);

    int count() const { return m_count; }
    int capacity() const { return m_capacity; }
    JavaVMOption* data() { return m_pOptions.get(); }

private:
    void grow();

    int m_count = 0;
    int m_capacity = 0;
    zvMalloc::Array<JavaVMOption> m_pOptions;
};

#endif
