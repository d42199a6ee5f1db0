#include <dlfcn.h>
#include <jni.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvFSClient.h"

namespace {

constexpr char name[] = "folder/some file.txt";

JNIEnv* attachedEnvironment() {
    void* const library = dlopen("libjvm.so", RTLD_NOW | RTLD_NOLOAD);
    zvBenchmarkRequire(library != nullptr, "Java has not been loaded");
    const auto created =
        reinterpret_cast<decltype(&JNI_GetCreatedJavaVMs)>(dlsym(library, "JNI_GetCreatedJavaVMs"));
    JavaVM* machine = nullptr;
    jsize count = 0;
    created(&machine, 1, &count);
    void* environment = nullptr;
    machine->GetEnv(&environment, JNI_VERSION_1_6);
    return static_cast<JNIEnv*>(environment);
}

// The raw JNI call: client and method are looked up once.
struct RawClient {
    JNIEnv* env = attachedEnvironment();
    jobject client;
    jmethodID exists;

    RawClient() {
        const std::string package = "com/vantorel/ep/products/fsclient/";
        jclass const factoryClass = env->FindClass((package + "FileServerClientFactory").c_str());
        jclass const clientClass = env->FindClass((package + "FileServerClient").c_str());
        jobject const factory = env->CallStaticObjectMethod(
            factoryClass, env->GetStaticMethodID(factoryClass, "getInstance",
                                                 ("()L" + package + "FileServerClientFactory;").c_str()));
        client = env->NewGlobalRef(env->CallObjectMethod(
            factory, env->GetMethodID(factoryClass, "getFileServerClient",
                                      ("()L" + package + "FileServerClient;").c_str())));
        env->CallVoidMethod(client, env->GetMethodID(clientClass, "connect", "()V"));
        exists = env->GetMethodID(clientClass, "exists", "(Ljava/lang/String;)Z");
        zvBenchmarkRequire(env->ExceptionCheck() == JNI_FALSE && exists != nullptr, "Java failed");
    }

    bool find(const std::u16string& path) const {
        jstring const text =
            env->NewString(reinterpret_cast<const jchar*>(path.data()), static_cast<jsize>(path.size()));
        const bool found = env->CallBooleanMethod(client, exists, text) == JNI_TRUE;
        zvBenchmarkRequire(env->ExceptionCheck() == JNI_FALSE, "The raw call failed");
        env->DeleteLocalRef(text);
        return found;
    }
};

}  // namespace

void zvJavaBenchmark() {
    setenv("CLASSPATH", ZV_FILE_SERVER_CLIENT, 1);
    const std::string root = zvBenchmarkFiles::path("server");
    std::filesystem::create_directories(root + "/folder");
    std::ofstream(root + '/' + name) << "content";
    const std::string settings = zvBenchmarkFiles::path("client.properties");
    std::ofstream(settings) << "url=file://" << root << '\n';
    zvFSClient* const client = zvFSClient::getInstance(settings.c_str());
    const auto raw = std::make_shared<RawClient>();
    const std::u16string wide(std::begin(name), std::end(name) - 1);
    zvBenchmarkRequire(client->exists(name) && raw->find(wide), "A client does not find the file");
    zvBenchmarkRow("one file operation through Java (exists)")
        .ours([client, path = zvString(name)] { return client->exists(path); })
        .peer("raw JNI, cached ids", "1.5", [raw, wide] { return raw->find(wide); });
}
