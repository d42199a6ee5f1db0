#ifndef ZV_PROPERTIES_H
#define ZV_PROPERTIES_H

#include <memory>

#include "zvCoreObject.h"
#include "zvResult.h"
#include "zvStringList.h"
#include "zvStringToStringMap.h"

/// The properties of a text file with one `name=value` a line.
///
/// Names and values are taken exactly as they stand around the first "=", blanks included, and neither may be
/// empty. Empty lines and lines that begin with "#" are skipped. The first of several lines with one name
/// wins.
class ZV_EXPORT zvProperties : public zvCoreObject {
public:
    zvProperties();
    zvProperties(const zvProperties& other);
    zvProperties& operator=(const zvProperties& other);
    ~zvProperties() override;

    /// Replaces the properties by those of the file at `path`. The result is a failure for an empty path and
    /// a file that cannot be read only: a bad line is logged and ends the reading, with what was read before
    /// it kept and the result 0.
    zvResult parse(const zvString& path);
    /// The value; empty for a name that is not defined.
    zvString getPropertyValue(const zvString& name) const;
    /// Appends all names, in the map's key order; false when there are none.
    bool getAllPropertyNames(zvStringList& names) const;

protected:
    /// Handles one line; false for a bad one and for a name that is there already.
    bool addPropertyToMap(const zvString& line);

private:
    std::unique_ptr<zvStringToStringMap> m_pProperties;
};

#endif
