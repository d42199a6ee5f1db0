#include "zvXERCESDOMNODEList.h"

using xercesc::DOMNode;

zvXERCESDOMNODEList::zvXERCESDOMNODEList() = default;
zvXERCESDOMNODEList::zvXERCESDOMNODEList(const zvXERCESDOMNODEList&) = default;
zvXERCESDOMNODEList& zvXERCESDOMNODEList::operator=(const zvXERCESDOMNODEList&) = default;
zvXERCESDOMNODEList::~zvXERCESDOMNODEList() = default;

bool zvXERCESDOMNODEList::addDOMNode(DOMNode* node) {
    m_nodes.push_back(node);
    return true;
}

int zvXERCESDOMNODEList::numDOMNode() const { return static_cast<int>(m_nodes.size()); }

DOMNode* zvXERCESDOMNODEList::getDOMNode(int i) const {
    return i >= 0 && i < numDOMNode() ? m_nodes[static_cast<std::size_t>(i)] : nullptr;
}

bool zvXERCESDOMNODEList::empty() const { return m_nodes.empty(); }

DOMNode* zvXERCESDOMNODEList::back() const { return m_nodes.empty() ? nullptr : m_nodes.back(); }

void zvXERCESDOMNODEList::pop() {
    if (!m_nodes.empty()) {
        m_nodes.pop_back();
    }
}

void zvXERCESDOMNODEList::clear() { m_nodes.clear(); }
