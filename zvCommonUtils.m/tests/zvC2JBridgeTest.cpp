#include "zvC2JBridge.h"

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "zvJavaTest.h"
#include "zvJvmLibrary.h"
#include "zvJvmOptionList.h"

namespace {

namespace fs = std::filesystem;

using zvC2JBridgeTest = zvJavaTest;

const fs::path javaLibrary(ZV_JVM_LIBRARY);
const fs::path javaHome = javaLibrary.parent_path().parent_path().parent_path();

zvString systemProperty(const char* name) {
    const zvJniFrame frame(*zvC2JBridge::getInstance()->getEnv());
    return frame.toText(frame.callStatic<jobject>(
        "java.lang.System", "getProperty", "(Ljava/lang/String;)Ljava/lang/String;", frame.toJava(name)));
}

// Starts a JVM without the bridge; the calling thread is attached to it.
JavaVM* startMachine() {
    auto* const create = reinterpret_cast<decltype(&JNI_CreateJavaVM)>(
        zvPlatform::findFunction(zvJvmLibrary::load().handle, "JNI_CreateJavaVM"));
    zvJvmOptionList options;
    options.addClassPath(ZV_RECORDING_JAR);
    JavaVMInitArgs arguments{JNI_VERSION_1_2, options.count(), options.data(), JNI_FALSE};
    JavaVM* machine = nullptr;
    void* env = nullptr;
    EXPECT_EQ(create(&machine, &env, &arguments), JNI_OK);
    return machine;
}

// The same by a thread that ends.
JavaVM* startMachineElsewhere() {
    JavaVM* machine = nullptr;
    std::thread([&machine] {
        machine = startMachine();
        machine->DetachCurrentThread();
    }).join();
    return machine;
}

TEST_F(zvC2JBridgeTest, StartsJavaOnce) {
    inProcessOfItsOwn([] {
        const zvScopedVariable classPath("CLASSPATH", "");
        zvC2JBridge* const bridge = zvC2JBridge::getInstance();
        ASSERT_NE(bridge, nullptr);
        zvString version("info: \n");
        for (const char* const key :
             {"java.runtime.name", "java.runtime.version", "java.vm.name", "java.vm.version"}) {
            version += zvString(key) + "=" + systemProperty(key) + "\n";
        }
        Lines lines = zvRecordingLogger::lines();
        EXPECT_EQ(lines.back().find("debug: The library was looked for in the system's search order"), 0U);
        lines.pop_back();
        const Lines expected = {"info: Started initializing C2JBridge",
                                "info: Started loading Java virtual machine",
                                "info: Successfully loaded Java virtual machine",
                                "debug: classpath=[.]",
                                "info: Started initializing Java virtual machine",
                                "info: Successfully initialized the Java virtual machine",
                                narrow(version),
                                "info: Finished initializing C2JBridge"};
        EXPECT_EQ(lines, expected);
        EXPECT_EQ(systemProperty("java.class.path"), ".");
        EXPECT_EQ(zvC2JBridge::getInstance(), bridge);
    });
}

TEST_F(zvC2JBridgeTest, LogsTheVersionAsJavaPrintsIt) {
    inProcessOfItsOwn([] {
        const zvScopedVariable options("JAVA_TOOL_OPTIONS",
                                       "--patch-module=jdk.unsupported=" ZV_JAVA_VERSION_CLASSES);
        ASSERT_NE(zvC2JBridge::getInstance(), nullptr);
        const Lines lines = zvRecordingLogger::lines("info");
        EXPECT_EQ(lines[lines.size() - 2], "\njava version \"1.4.2_99\"\n");
    });
}

TEST_F(zvC2JBridgeTest, FindsJavaInEveryPlace) {
    if (onWindows) {
        GTEST_SKIP() << "links and libjvm.so";
    }
    const zvTemporaryFolder links;
    fs::create_symlink(javaHome / "bin" / "java", links.path() / "java");
    struct Case {
        std::string libraryPath, home, path, found;
    };
    const Case cases[] = {
        {javaLibrary.parent_path().string(), "/nowhere", "/nowhere", "the system's search order"},
        {"", javaHome.string(), "/nowhere", "JAVA_HOME: " + javaHome.string()},
        {"", "", "/nowhere::" + links.path().string(),
         "a java on PATH: " + fs::canonical(javaHome).string()}};
    for (const Case& c : cases) {
        const zvScopedVariable libraryPath("LD_LIBRARY_PATH", c.libraryPath);
        const zvScopedVariable home("JAVA_HOME", c.home);
        const zvScopedVariable path("PATH", c.path);
        inProcessOfItsOwn([&] {
            ASSERT_NE(zvC2JBridge::getInstance(), nullptr);
            EXPECT_NE(zvRecordingLogger::lines("debug").back().find(c.found), std::string::npos);
        });
    }
}

TEST_F(zvC2JBridgeTest, TellsWhereItLookedForJava) {
    if (onWindows) {
        GTEST_SKIP() << "libjvm.so";
    }
    const zvScopedVariable libraryPath("LD_LIBRARY_PATH", "");
    const zvScopedVariable path("PATH", "/nowhere");
    inProcessOfItsOwn([this] {
        const std::string fake = m_folder.write("lib/server/libjvm.so", "no library");
        const zvScopedVariable home("JAVA_HOME", m_folder.path().string());
        const std::string message = "Failed to get the C++ to Java bridge instance";
        try {
            zvFSClient::getInstance(configuration().c_str());
            ADD_FAILURE();
        } catch (const zvException& exception) {
            EXPECT_EQ(narrow(exception.getMessage()), message);
            EXPECT_EQ(narrow(exception.getResult().getMessage()), message);
            EXPECT_EQ(narrow(exception.getResult().getAdditionalInformation()),
                      "The Java virtual machine was looked for in the system's search order; JAVA_HOME: " +
                          m_folder.path().string() + " (where " + fake + " cannot be loaded); PATH");
        }
        const Lines errors = {"Error loading [jvm]", "For Windows add to PATH variable.",
                              "For Solaris/Linux add to LD_LIBRARY_PATH variable.",
                              "For AIX add to LIBPATH variable.", "For HP-UX add to SHLIB_PATH variable."};
        EXPECT_EQ(zvRecordingLogger::lines("error"), errors);
        const Lines fatals = {"Failed to load the Java virtual machine", message};
        EXPECT_EQ(zvRecordingLogger::lines("fatal"), fatals);
        // First a library that is not a JVM; then Java, as if it had just been installed.
        fs::copy_file(javaHome / "lib" / "libjsig.so", fake, fs::copy_options::overwrite_existing);
        EXPECT_EQ(zvC2JBridge::getInstance(), nullptr);
        EXPECT_EQ(
            zvRecordingLogger::lines("error").back(),
            "Can't find JNI interfaces in [jvm]. Please note the information about JRE being used while "
            "reporting this error.");
        zvPlatform::setEnvironment("JAVA_HOME", javaHome.string().c_str());
        EXPECT_NE(zvC2JBridge::getInstance(), nullptr);
    });
}

TEST_F(zvC2JBridgeTest, LogsThatJavaRefusesToStart) {
    const zvScopedVariable options("JAVA_TOOL_OPTIONS", "-XX:NoSuchOption=1");
    inProcessOfItsOwn([] {
        EXPECT_EQ(zvC2JBridge::getInstance(), nullptr);
        EXPECT_EQ(zvRecordingLogger::lines("fatal"), Lines{"Failed to initialize the Java virtual machine"});
    });
}

TEST_F(zvC2JBridgeTest, StartsJavaWithTheOptionsOfTheProgram) {
    inProcessOfItsOwn([] {
        zvFSClient::addJavaOption("-Dzv.first=a b");
        zvFSClient::addJavaOption("-Dzv.second=2");
        ASSERT_NE(zvC2JBridge::getInstance(), nullptr);
        EXPECT_EQ(systemProperty("zv.first"), "a b");
        EXPECT_EQ(systemProperty("zv.second"), "2");
    });
    inProcessOfItsOwn([] {
        zvFSClient::addJavaOption("-XX:NoSuchOption=1");
        EXPECT_EQ(zvC2JBridge::getInstance(), nullptr);
    });
}

TEST_F(zvC2JBridgeTest, TellsThatJavaEndsTheProcess) {
    const auto endByJava = [] {
        zvFSClient::setJavaEndObserver([] { std::_Exit(7); });
        const zvJniFrame frame(*zvC2JBridge::getInstance()->getEnv());
        frame.callStatic<void>("java.lang.System", "exit", "(I)V", jint{0});
    };
    EXPECT_EXIT(endByJava(), testing::ExitedWithCode(7), "");
}

TEST_F(zvC2JBridgeTest, UsesAJavaThatRunsAlready) {
    for (const auto start : {startMachine, startMachineElsewhere}) {
        inProcessOfItsOwn([&] {
            JavaVM* const machine = start();
            zvFSClient& client = *zvFSClient::getInstance(configuration().c_str());
            EXPECT_EQ(
                zvRecordingLogger::lines("info")[10],
                "Using the Java virtual machine that already runs in this process, with its own class path");
            forget();
            client.mkDir("here");
            Lines expected = {"mkDir(here)"};
            for (int i = 0; i < 20; ++i) {
                std::thread([&client] { client.mkDir("there"); }).join();
                expected.emplace_back("mkDir(there)");
            }
            EXPECT_EQ(calls(), expected);
            // Whoever started it ends it; the threads that the library attached know of it.
            EXPECT_EQ(machine->DestroyJavaVM(), JNI_OK);
        });
    }
}

TEST_F(zvC2JBridgeTest, KeepsTheLocaleAndSharesItWithJava) {
    if (onWindows) {
        GTEST_SKIP() << "a UTF-8 locale";
    }
    const zvScopedVariable all("LC_ALL", "");
    const zvScopedVariable characters("LC_CTYPE", "");
    const zvScopedVariable language("LANG", "C");
    inProcessOfItsOwn([] {
        const std::string before = std::setlocale(LC_ALL, nullptr);
        ASSERT_NE(zvC2JBridge::getInstance(), nullptr);
        EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
        EXPECT_STREQ(std::getenv("LC_CTYPE"), "");
        EXPECT_EQ(systemProperty("sun.jnu.encoding"), "UTF-8");
    });
}

TEST_F(zvC2JBridgeTest, TheOptionListDoubles) {
    zvJvmOptionList options;
    for (int i = 1; i <= 9; ++i) {
        options.addClassPath(std::to_string(i).c_str());
        EXPECT_EQ(options.count(), i);
        EXPECT_EQ(options.capacity(), i <= 4 ? 4 : i <= 8 ? 8 : 16);
    }
    EXPECT_STREQ(options.data()[0].optionString, "-Djava.class.path=1");
    EXPECT_STREQ(options.data()[8].optionString, "-Djava.class.path=9");
    for (const std::size_t tooMany : {SIZE_MAX / 4, SIZE_MAX}) {
        // The address is used, or the compiler may elide the allocation.
        EXPECT_EXIT(std::printf("%p", static_cast<void*>(zvMalloc::allocate<jint>(tooMany).get())),
                    testing::ExitedWithCode(1), "malloc: ");
    }
}

}  // namespace
