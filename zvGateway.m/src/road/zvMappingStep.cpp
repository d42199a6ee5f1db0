#include "zvMappingStep.h"

#include <vector>

#include "zvConsole.h"
#include "zvMappedObjectFile.h"
#include "zvMappingReport.h"
#include "zvObjectAttribute.h"

zvMappingStep::zvMappingStep(const zvGatewayEvent& event)
    : m_event(event), m_object{event.argument("LocalType"), event.argument("RemoteType"), {}} {}

std::string zvMappingStep::reasonToLeaveOut() const {
    return m_object.type().empty()                          ? "the event has no object"
           : m_event.record->hasArrived(m_event.dataFile()) ? "the data file arrived before"
                                                            : "";
}

zvStepOutcome zvMappingStep::run() const {
    const std::string reason = reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    const zvIncomingObject object = incomingObject();
    const zvMappingTrial trial(object);
    report(trial);
    refuse(trial);
    show(trial);
    const zvString file = m_event.dataFile();
    zvMappedObjectFile::write(file, trial.mapping());
    zvConsole::fact("data file", zvConsole::printablePath(file));
    showTransition(trial.mapping().object());
    return zvStepOutcome::done(zvMappingReport::typesOf(trial.mapping().object()));
}

zvIncomingObject zvMappingStep::incomingObject() const {
    zvIncomingObject object = m_object;
    object.values = attributeValues();
    return object;
}

void zvMappingStep::report(const zvMappingTrial& trial) const {
    if (trial.candidates() != nullptr) {
        m_event.record->setObject(describeObject(trial.mapping(), *trial.candidates()->get(0)));
    }
    if (m_event.session.options.isDryRun) {
        zvMappingReport::print(zvMappingReport(trial).candidates());
    }
}

void zvMappingStep::show(const zvMappingTrial& trial) const {
    zvMappingReport::print(zvMappingReport(trial).object(m_event.session.options.isDryRun));
}

// The type and the values of the key attributes, as people speak of an object; objects of one type have the
// same.
std::string zvMappingStep::describeObject(const zvObjectMapping& mapping, const zvCfgObject& object) const {
    std::string text = zvConsole::printable(m_object.type());
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        const zvString& name = mapping.sourceName(attribute);
        const zvString* const value = attribute.isKeyAttribute() ? mapping.findText(name) : nullptr;
        if (value != nullptr && !value->empty()) {
            text.append(" ").append(zvConsole::printable(zvObjectAttribute::shownValue(name, *value)));
        }
    }
    return text;
}

void zvMappingStep::refuse(const zvMappingTrial& trial) const {
    // First: a value that is not what was meant may be why no rule holds.
    if (!trial.faults().empty() && !m_event.session.options.isLenient) {
        throw zvStepFailure{zvConsole::counted(static_cast<std::ptrdiff_t>(trial.faults().size()), "fault"),
                            zvConsole::joined(trial.faults(), "; ")};
    }
    for (const std::string& fault : trial.faults()) {
        zvConsole::fact("warning", fault);
    }
    if (!trial.reason().empty()) {
        throw zvStepFailure{zvConsole::printable(m_object.type()), trial.reason()};
    }
}

zvObjectMapping::Values zvMappingStep::attributeValues() const {
    const zvString prefix(zvObjectAttribute::argumentPrefix);
    zvObjectMapping::Values values;
    m_event.arguments->forEach([&](const zvString& key, const zvString& value) {
        if (key.find(prefix, 0, prefix.size() - 1) == 0) {
            values.emplace(key.substr(prefix.size(), key.size() - prefix.size()), value);
        }
    });
    return values;
}

void zvMappingStep::showTransition(const zvCfgObject& object) const {
    const zvString from = m_event.argument("FromState");
    const zvString to = m_event.argument("ToState");
    if (from.empty() && to.empty()) {
        return;
    }
    const zvLifecycleWay way(object, from, to);
    if (!way.exists()) {
        throw zvStepFailure{zvConsole::printable(from) + " -> " + zvConsole::printable(to),
                            "the object's lifecycle has no such way"};
    }
    zvMappingReport::print(way);
}
