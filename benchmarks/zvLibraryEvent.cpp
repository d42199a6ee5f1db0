// The start of an event in a gateway program: parses its arguments and creates its shadow directory.
#include <clocale>
#include <cstdlib>

#include "zvEventArguments.h"

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "C.UTF-8");
    zvEventArguments* const arguments = zvEventArguments::parseEventArguments(argc, argv);
    const zvResult result = zvEventArguments::populateEventArguments(
        arguments->getEventArgumentValue("RootShadowDir"), *arguments);
    arguments->destroy();
    return result.isOk() ? EXIT_SUCCESS : EXIT_FAILURE;
}
