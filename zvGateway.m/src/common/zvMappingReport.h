#ifndef ZV_MAPPING_REPORT_H
#define ZV_MAPPING_REPORT_H

#include <string>
#include <utility>
#include <vector>

#include "zvMappingTrial.h"

/// What became of an object, and why, as facts for people: a name and a text.
class zvMappingReport {
public:
    using Facts = std::vector<std::pair<std::string, std::string>>;

    /// The trial must live longer.
    explicit zvMappingReport(const zvMappingTrial& trial) : m_trial(trial) {}

    /// The candidates in their order, each with what came of its rule and of every part of it.
    Facts candidates() const;
    /// The object that was taken, its attributes in the other system and what has no place there; with
    /// `explains` also where each value comes from, and which attributes have none. Nothing without an
    /// object.
    Facts object(bool explains) const;

    static void print(const Facts& facts);

    /// As in "Part -> ReleasedPart".
    static std::string typesOf(const zvCfgObject& object);
    /// Prints the way between two states of the object's lifecycle. False if there is none.
    static bool printWay(const zvCfgObject& object, const zvString& from, const zvString& to);

private:
    void addUnmapped(Facts& facts) const;
    void addWithoutValue(Facts& facts) const;
    std::string sourceOf(const zvObjectMapping::Attribute& attribute) const;

    const zvMappingTrial& m_trial;
};

#endif
