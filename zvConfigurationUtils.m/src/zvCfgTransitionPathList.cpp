#include "zvCfgTransitionPathList.h"

#include <utility>

zvCfgTransitionPathList::zvCfgTransitionPathList() = default;

zvCfgTransitionPathList::zvCfgTransitionPathList(const zvCfgTransitionPathList& other) = default;

zvCfgTransitionPathList::~zvCfgTransitionPathList() = default;

zvCfgTransitionPathList& zvCfgTransitionPathList::operator=(const zvCfgTransitionPathList& other) = default;

void zvCfgTransitionPathList::add(zvCfgTransitionPath path) { m_paths.push_back(std::move(path)); }

void zvCfgTransitionPathList::clear() { m_paths.clear(); }

int zvCfgTransitionPathList::size() const { return static_cast<int>(m_paths.size()); }

const zvCfgTransitionPath* zvCfgTransitionPathList::get(int i) const {
    return i >= 0 && i < size() ? &m_paths[static_cast<std::size_t>(i)] : nullptr;
}
