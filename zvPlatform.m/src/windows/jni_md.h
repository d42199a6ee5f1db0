#ifndef ZV_JNI_MD_H
#define ZV_JNI_MD_H

// What jni.h leaves to the system, for Windows: a Java development kit on another system has its own only.
#define JNIEXPORT __declspec(dllexport)
#define JNIIMPORT __declspec(dllimport)
#define JNICALL __stdcall

typedef long jint;  // NOLINT(modernize-use-using): C includes it too
typedef long long jlong;
typedef signed char jbyte;

#endif
