// The search for a JVM on PATH, and the JNI calls to it.
#include "zvC2JBridge.h"
#include "zvFSClient.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;
using zvJvmOnPathTest = zvLoggedTest;

std::string takeRecordedCalls() {
    auto* const take = reinterpret_cast<const char* (*)()>(
        zvPlatform::findFunction(zvPlatform::loadLibrary("jvm"), "takeRecordedCalls"));
    return take == nullptr ? "no fake Java" : take();
}

// The order of the tests matters: a loaded library stays loaded.
TEST_F(zvJvmOnPathTest, WithoutAJavaNothingStarts) {
    zvPlatform::setEnvironment("PATH", m_folder.path().string().c_str());
    zvPlatform::setEnvironment("JAVA_HOME", "");
    EXPECT_EQ(zvC2JBridge::getInstance(), nullptr);
    EXPECT_EQ(zvRecordingLogger::lines("error"),
              (Lines{"Error loading [jvm]", "For Windows add to PATH variable.",
                     "For Solaris/Linux add to LD_LIBRARY_PATH variable.", "For AIX add to LIBPATH variable.",
                     "For HP-UX add to SHLIB_PATH variable."}));
    EXPECT_EQ(zvRecordingLogger::lines("fatal"), Lines{"Failed to load the Java virtual machine"});
}

TEST_F(zvJvmOnPathTest, IsFoundOnPathAndDrivenThroughJni) {
    const std::string java = std::filesystem::absolute(ZV_FAKE_JAVA).string();
    zvPlatform::setEnvironment("PATH", (m_folder.path().string() + ";" + java).c_str());
    zvPlatform::setEnvironment("CLASSPATH", "C:\\a b\\client.jar;.");
    zvFSClient* const client = zvFSClient::getInstance("C:\\home\\client.properties");
    EXPECT_EQ(takeRecordedCalls(),
              "JNI_CreateJavaVM version 65538\n"
              "-Djava.class.path=C:\\a b\\client.jar;.\n"
              "FindClass java/io/ByteArrayOutputStream\n"
              "GetMethodID <init>()V\n"
              "NewObject <init>\n"
              "FindClass java/io/PrintStream\n"
              "GetMethodID <init>(Ljava/io/OutputStream;)V\n"
              "NewObject <init> object\n"
              "FindClass sun/misc/Version\n"
              "GetStaticMethodID print(Ljava/io/PrintStream;)V\n"
              "CallStaticVoidMethod print object\n"
              "GetMethodID toString()Ljava/lang/String;\n"
              "CallObjectMethod toString\n"
              "FindClass com/vantorel/ep/products/fsclient/FileServerClientFactory\n"
              "GetStaticMethodID getInstance()Lcom/vantorel/ep/products/fsclient/FileServerClientFactory;\n"
              "CallStaticObjectMethod getInstance\n"
              "GetMethodID toString()Ljava/lang/String;\n"
              "CallObjectMethod toString\n"
              "FindClass com/vantorel/ep/products/fsclient/Notices\n"
              "RegisterNatives receive(Ljava/lang/String;)V\n"
              "FindClass com/vantorel/ep/products/fsclient/Notices\n"
              "RegisterNatives isCancelled()Z\n"
              "FindClass com/vantorel/ep/products/fsclient/Notices\n"
              "RegisterNatives receiveProgress(Ljava/lang/String;JJ)V\n"
              "GetMethodID initialize(Ljava/lang/String;)V\n"
              "CallVoidMethod initialize C:\\home\\client.properties\n"
              "GetMethodID getFileServerClient()Lcom/vantorel/ep/products/fsclient/FileServerClient;\n"
              "CallObjectMethod getFileServerClient\n"
              "GetMethodID toString()Ljava/lang/String;\n"
              "CallObjectMethod toString\n"
              "GetMethodID connect()V\n"
              "CallVoidMethod connect\n");
    const Lines info = zvRecordingLogger::lines("info");
    EXPECT_NE(std::find(info.begin(), info.end(), "\nfake\n"), info.end()) << "Java's version";

    zvStringList files;
    files.addString("f");
    client->setFileType(1);
    client->put("C:\\a b\\f", "r/f");
    client->get("r", "C:\\l", &files);
    EXPECT_TRUE(client->exists("r/f"));
    EXPECT_EQ(takeRecordedCalls(),
              "GetMethodID setFileTransferMode(I)V\n"
              "CallVoidMethod setFileTransferMode 1\n"
              "GetMethodID put(Ljava/lang/String;Ljava/lang/String;)V\n"
              "CallVoidMethod put C:\\a b\\f r/f\n"
              "GetMethodID get(Ljava/lang/String;Ljava/lang/String;Ljava/util/List;)V\n"
              "FindClass java/util/ArrayList\n"
              "GetMethodID <init>()V\n"
              "NewObject <init>\n"
              "GetMethodID add(Ljava/lang/Object;)Z\n"
              "CallBooleanMethod add object\n"
              "CallVoidMethod get r C:\\l object\n"
              "GetMethodID exists(Ljava/lang/String;)Z\n"
              "CallBooleanMethod exists r/f\n");
    zvFSClient::destroyInstance();
    EXPECT_EQ(takeRecordedCalls(), "GetMethodID disconnect()V\nCallVoidMethod disconnect\n");
}

}  // namespace
