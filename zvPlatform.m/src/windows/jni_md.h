#ifndef ZV_JNI_MD_H
#define ZV_JNI_MD_H

// The platform-dependent part of jni.h, for cross-builds: a JDK ships only the one of its own system.
#define JNIEXPORT __declspec(dllexport)
#define JNIIMPORT __declspec(dllimport)
#define JNICALL __stdcall

typedef long jint;  // NOLINT(modernize-use-using): also included from C
typedef long long jlong;
typedef signed char jbyte;

#endif
