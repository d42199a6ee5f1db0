#ifndef ZV_JVM_OPTION_LIST_H
#define ZV_JVM_OPTION_LIST_H

#include <jni.h>

#include "zvMalloc.h"

/// The options for starting the JVM. Out of memory, its operations end the process.
class zvJvmOptionList {
public:
    zvJvmOptionList() = default;
    zvJvmOptionList(const zvJvmOptionList&) = delete;
    zvJvmOptionList& operator=(const zvJvmOptionList&) = delete;
    ~zvJvmOptionList();

    /// Appends an option and takes ownership of its text.
    void add(zvMalloc::Array<char> option, void* extraInformation = nullptr);
    /// Appends a copy of the option.
    void add(const char* option, void* extraInformation = nullptr);
    /// Appends the class path, with this system's path list separator.
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
