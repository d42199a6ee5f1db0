#ifndef ZV_XERCES_DOM_NODE_LIST_H
#define ZV_XERCES_DOM_NODE_LIST_H

#include <vector>
#include <xercesc/util/XercesDefs.hpp>

#include "zvCoreObject.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// A list of nodes in insertion order. The nodes are owned by their document and valid as long as it.
class ZV_EXPORT zvXERCESDOMNODEList : public zvCoreObject {
public:
    zvXERCESDOMNODEList();
    zvXERCESDOMNODEList(const zvXERCESDOMNODEList& other);
    zvXERCESDOMNODEList& operator=(const zvXERCESDOMNODEList& other);
    ~zvXERCESDOMNODEList() override;

    /// Always true.
    bool addDOMNode(xercesc::DOMNode* node);
    int numDOMNode() const;
    /// Node `i`; null if `i` is out of range.
    xercesc::DOMNode* getDOMNode(int i) const;
    bool empty() const;
    /// The last node; null for an empty list.
    xercesc::DOMNode* back() const;
    /// Removes the last node, if any.
    void pop();
    void clear();

private:
    std::vector<xercesc::DOMNode*> m_nodes;
};

#endif
