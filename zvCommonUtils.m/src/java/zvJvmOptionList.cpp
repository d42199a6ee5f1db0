#include "zvJvmOptionList.h"

#include <algorithm>
#include <cstring>

zvJvmOptionList::~zvJvmOptionList() {
    for (int i = 0; i < m_count; ++i) {
        zvMalloc::Free()(m_pOptions[static_cast<std::size_t>(i)].optionString);
    }
}

void zvJvmOptionList::add(zvMalloc::Array<char> option, void* extraInformation) {
    if (m_count == m_capacity) {
        grow();
    }
    m_pOptions[static_cast<std::size_t>(m_count++)] = {option.release(), extraInformation};
}

void zvJvmOptionList::add(const char* option, void* extraInformation) {
    const std::size_t size = std::strlen(option) + 1;
    zvMalloc::Array<char> copy = zvMalloc::allocate<char>(size);
    std::copy_n(option, size, copy.get());
    add(std::move(copy), extraInformation);
}

void zvJvmOptionList::addClassPath(const char* classPath) {
    constexpr std::size_t roomForName = 40;
    const std::size_t size = std::strlen(classPath) + roomForName;
    zvMalloc::Array<char> option = zvMalloc::allocate<char>(size);
    std::snprintf(option.get(), size, "-Djava.class.path=%s", classPath);
    add(std::move(option));
}

void zvJvmOptionList::grow() {
    constexpr int firstCapacity = 4;
    m_capacity = m_capacity == 0 ? firstCapacity : 2 * m_capacity;
    zvMalloc::Array<JavaVMOption> larger =
        zvMalloc::allocate<JavaVMOption>(static_cast<std::size_t>(m_capacity));
    std::copy_n(m_pOptions.get(), m_count, larger.get());
    m_pOptions = std::move(larger);
}
