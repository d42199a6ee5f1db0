#ifndef ZV_ATTACHMENTS_STEP_H
#define ZV_ATTACHMENTS_STEP_H

#include "zvGatewayEvent.h"

/// The step that reads the event's attachments from the XML file that "AttachmentsFile" names, and puts a
/// copy of that list into the event's directory.
class zvAttachmentsStep {
public:
    explicit zvAttachmentsStep(zvGatewayEvent& event) : m_event(event) {}

    /// Throws a zvStepFailure: for a list that cannot be read to its end, and for an attachment that cannot
    /// be read and has not arrived yet.
    zvStepOutcome run();

private:
    void readList(const zvString& file);
    void showAttachments() const;
    void copyList(const zvString& file) const;

    zvGatewayEvent& m_event;
};

#endif
