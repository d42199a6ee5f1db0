#ifndef ZV_PROPERTIES_H
#define ZV_PROPERTIES_H

#include <memory>

#include "zvCoreObject.h"
#include "zvResult.h"
#include "zvStringList.h"
#include "zvStringToStringMap.h"

/// The properties of a text file with one `name=value` per line.
///
/// Lines are split at the first "="; name and value keep their blanks, and neither may be empty. Empty lines
/// and lines that begin with "#" are skipped. Of duplicate names the first wins.
class ZV_EXPORT zvProperties : public zvCoreObject {
public:
    zvProperties();
    zvProperties(const zvProperties& other);
    zvProperties& operator=(const zvProperties& other);
    ~zvProperties() override;

    /// Replaces the properties with those of the file at `path`. Fails only for an empty path and an
    /// unreadable file: an invalid line is logged and ends the parse with the properties before it and the
    /// result 0.
    zvResult parse(const zvString& path);
    /// The value of `name`; empty if it is not defined.
    zvString getPropertyValue(const zvString& name) const;
    /// Appends all names in order; false if there are none.
    bool getAllPropertyNames(zvStringList& names) const;

protected:
    /// Parses one line; false for an invalid line and for a duplicate name.
    bool addPropertyToMap(const zvString& line);

private:
    std::unique_ptr<zvStringToStringMap> m_pProperties;
};

#endif
