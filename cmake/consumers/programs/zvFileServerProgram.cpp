#include "zvCheck.h"
#include "zvException.h"
#include "zvFSClient.h"

// A list by its address, a filter as a text, and no list for a null pointer.
int main(int count, char** arguments) {
    if (count < 2) {
        return failures;
    }
    zvFSClient* client = zvFSClient::getInstance(arguments[1]);
    client = zvFSClient::getInstance();
    zvStringList files;
    files.addString("a.txt");
    client->get("remote", "local");
    client->get("remote", "local", &files);
    client->get("remote", "local", nullptr);
    client->get("remote", "local", "*.txt");
    client->put("local", "remote");
    client->put("local", "remote", &files);
    client->put("local", "remote", '*');
    client->mkDir(5);
    ZV_CHECK(client->exists('a'));
    client->list("remote", files);
    client->setFileType(1);
    zvFSClient::destroyInstance();
    return failures;
}
