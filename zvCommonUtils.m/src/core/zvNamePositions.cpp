#include "zvNamePositions.h"

#include <utility>
#include <vector>

#include "zvNameTable.h"

struct zvNamePositions::Implementation {
    std::vector<std::shared_ptr<const zvString>> names;  // which the table borrows
    zvNameTable<int> table;
};

zvNamePositions::zvNamePositions() : m_pImplementation(std::make_unique<Implementation>()) {}

zvNamePositions::~zvNamePositions() = default;

bool zvNamePositions::add(std::shared_ptr<const zvString> name, int position) {
    if (name == nullptr || name->empty() || find(*name) >= 0) {
        return false;
    }
    Implementation& own = *m_pImplementation;
    own.names.push_back(std::move(name));
    const zvString& added = *own.names.back();
    return own.table.add(viewOf(added), zvStringUnits::hashOf(added), position);
}

int zvNamePositions::find(const zvString& name) const { return find(name, zvStringUnits::hashOf(name)); }

int zvNamePositions::find(const zvString& name, std::uint32_t hash) const {
    const int* const position = m_pImplementation->table.find(viewOf(name), hash);
    return position == nullptr ? -1 : *position;
}
