/* Only the system calls of one event: the lower bound for any program that handles one. */
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

enum { pathSize = 4096 };

static int createFile(const char* root, long name, const char* suffix) {
    char path[pathSize];
    snprintf(path, sizeof(path), "%s/%ld/%ld%s", root, name, name, suffix);
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    return file >= 0 && close(file) == 0;
}

int main(int argc, char** argv) {
    static const char key[] = "RootShadowDir=";
    const char* root = "";
    for (int i = 1; i < argc; ++i) {
        if (strncmp(argv[i], key, sizeof(key) - 1) == 0) {
            root = argv[i] + sizeof(key) - 1;
        }
    }
    if (access(root, R_OK | W_OK) != 0) {
        return EXIT_FAILURE;
    }
    long name = (long)time(NULL);
    char path[pathSize];
    do {
        snprintf(path, sizeof(path), "%s/%ld", root, name++);
    } while (access(path, F_OK) == 0);
    --name;
    return mkdir(path, 0777) == 0 && createFile(root, name, "_data.xml") && createFile(root, name, "_attachments.xml")
               ? EXIT_SUCCESS
               : EXIT_FAILURE;
}
