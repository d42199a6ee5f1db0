#include "WriteMemoryCallbackWrapper.h"
#include "zvCheck.h"
#include "zvCommProtocoalEnum.h"
#include "zvCommunicationFactory.h"
#include "zvCoreHttpUtils.h"

namespace {

class OwnProtocol : public zvCommunicationUtils {
public:
    zvResult request(const zvString& url, const zvEventArguments& args,
                     WriteMemoryCallbackWrapper*) override {
        return args.numEventArguments() + url.size();
    }
};

std::size_t discard(char*, std::size_t size, std::size_t count, void*) { return size * count; }

}  // namespace

int main() {
    const zvCommunicationFactory factory, sameFactory(factory);
    const zvEventArguments arguments(zvEventMirror, "user");
    WriteMemoryCallbackWrapper sink;
    sink.m_pWriteFunction = &discard;
    sink.m_pUserData = nullptr;
    zvCommunicationUtils* const http = zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP);
    ZV_CHECK(zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalNone) == nullptr);
    ZV_CHECK(http->request("nowhere://", arguments, &sink) == -1);
    http->queryResponse();
    http->queryResponseHeader();
    zvCommunicationUtils base, copy(*http);
    base = copy;
    ZV_CHECK(!base.request("http://localhost", arguments, nullptr).isOk());
    base.queryResponse();
    base.queryResponseHeader();
    delete http;
    ZV_CHECK(OwnProtocol().request('u', arguments, nullptr) == 3);
    use(sameFactory);
    return failures;
}
