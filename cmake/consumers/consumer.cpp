// The program of both consumers: it uses a class of every layer that needs no further installation.
#include <cstdio>

#include "zvCommonUtilsExport.h"

int main() {
    zvEventArguments arguments(zvEventPublishLkPart, u"J\u00fcrgen");
    zvTemplateMap<zvString, int> counts;
    counts.insert(arguments.getEventArgumentValue("EventName"), arguments.numEventArguments());
    int count = 0;
    if (!counts.find("publishLkPart", count) || count != 2) {
        return 1;
    }
    try {
        static_cast<void>(zvValue().getIntValue());
    } catch (const zvException& exception) {
        std::printf("%s\n", zvCharString(exception.getMessage()).data());
        return 0;
    }
    return 1;
}
