#include "zvCommunicationFactory.h"

#include <memory>

#include "zvHttpUtils.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvCommunicationFactory");

}  // namespace

zvCommunicationFactory::zvCommunicationFactory() = default;
zvCommunicationFactory::zvCommunicationFactory(const zvCommunicationFactory&) = default;
zvCommunicationFactory& zvCommunicationFactory::operator=(const zvCommunicationFactory&) = default;
zvCommunicationFactory::~zvCommunicationFactory() = default;

zvCommunicationUtils* zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalEnum protocol) {
    logger.debug("Inside function zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalEnum)");
    std::unique_ptr<zvCommunicationUtils> utils;
    if (protocol == zvCommProtocoalHTTP) {
        utils.reset(new zvHttpUtils);
    } else {
        logger.error("Undefined Protocol.");
    }
    logger.debug("Exiting function zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalEnum)");
    return utils.release();
}
