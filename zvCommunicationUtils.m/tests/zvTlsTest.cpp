#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "zvCommunicationTestSupport.h"
#include "zvCurlFailure.h"
#include "zvLoopbackServer.h"
#include "zvTlsAuthority.h"

#ifdef CPPHTTPLIB_OPENSSL_SUPPORT
namespace {

using Failure = zvRequestOutcome::Failure;
using TlsFailure = zvRequestOutcome::TlsFailure;

constexpr char thisHost[] = "IP:127.0.0.1";
constexpr const char* variables[] = {"CURL_CA_BUNDLE", "SSL_CERT_FILE", "SSL_CERT_DIR"};

// A server that refuses a client hangs up: what is noticed first is up to the system.
bool isRefused(const zvRequestOutcome& outcome) {
    return outcome.tlsFailure == TlsFailure::refused || outcome.failure == Failure::connection;
}

class zvTlsTest : public zvCommunicationUtilsTest {
protected:
    zvTlsTest() : m_strCaFile(m_folder.write("ca/" + m_authority.fileName(), "")) {
        writeCertificate(m_strCaFile, m_authority.identity());
        for (const char* const variable : variables) {
            zvPlatform::setEnvironment(variable, "");
        }
    }
    ~zvTlsTest() override {
        for (const char* const variable : variables) {
            zvPlatform::setEnvironment(variable, "");
        }
    }

    void configure(const std::string& lines) const { m_folder.write("config/client-config.ini", lines); }
    std::string caLine() const { return "http-ca-file=" + m_strCaFile + "\n"; }

    zvRequestOutcome outcomeOf(const LoopbackServer& server) {
        const auto utils = create();
        m_strMessage = narrow(utils->request(server.url("/200", "https"), m_args, nullptr).getMessage());
        return utils->lastOutcome();
    }

    TlsAuthority m_authority;
    std::string m_strCaFile;
    std::string m_strMessage;  // of the last request's result
};

TEST_F(zvTlsTest, TheFailedCheckIsTold) {
    const struct {
        const char* name;
        TlsIdentity identity;
        bool isAuthorityKnown;
        TlsFailure failure;
    } cases[] = {
        {"trusted", m_authority.issue(thisHost), true, TlsFailure::none},
        {"unknown issuer", m_authority.issue(thisHost), false, TlsFailure::unknownIssuer},
        {"other authority", TlsAuthority("other").issue(thisHost), true, TlsFailure::unknownIssuer},
        {"expired", m_authority.issue(thisHost, -7200, -3600), true, TlsFailure::expired},
        {"not yet valid", m_authority.issue(thisHost, 3600, 7200), true, TlsFailure::notYetValid},
        {"other host", m_authority.issue("DNS:other.example"), true, TlsFailure::wrongHost},
        {"other address", m_authority.issue("IP:127.0.0.2"), true, TlsFailure::wrongHost},
    };
    for (const auto& [name, identity, isAuthorityKnown, failure] : cases) {
        LoopbackServer server(m_authority.server(identity));
        configure(isAuthorityKnown ? caLine() : "http-connect-timeout=30\n");
        const auto utils = create();
        EXPECT_EQ(utils->connect(server.url("/200", "https")).isOk(), failure == TlsFailure::none) << name;
        EXPECT_EQ(utils->lastOutcome().tlsFailure, failure) << name << ", without a request";
        const zvRequestOutcome outcome = outcomeOf(server);
        EXPECT_EQ(outcome.tlsFailure, failure) << name << ": " << narrow(outcome.errorText);
        EXPECT_EQ(outcome.failure, failure == TlsFailure::none ? Failure::none : Failure::tls) << name;
        EXPECT_EQ(m_strMessage,
                  failure == TlsFailure::none ? "" : "SSL peer certificate or SSH remote key was not OK");
        EXPECT_EQ(server.m_requests, failure == TlsFailure::none ? 1 : 0) << name;
    }
}

TEST_F(zvTlsTest, WhatIsNotTlsIsNoCertificateProblem) {
    LoopbackServer server;
    EXPECT_EQ(outcomeOf(server).failure, Failure::tls);
    EXPECT_EQ(m_strMessage, "SSL connect error");
    EXPECT_EQ(outcomeOf(server).tlsFailure, TlsFailure::other);
}

TEST_F(zvTlsTest, TheUsualVariablesNameTrustedCertificates) {
    const TlsIdentity identity = m_authority.issue(thisHost);
    LoopbackServer server(m_authority.server(identity));
    const std::string folder = m_folder.file("ca");
    for (const auto& [variable, path] : {std::pair{"CURL_CA_BUNDLE", m_strCaFile},
                                         {"SSL_CERT_FILE", m_strCaFile},
                                         {"SSL_CERT_DIR", folder}}) {
        zvPlatform::setEnvironment(variable, path.c_str());
        EXPECT_EQ(outcomeOf(server).status, 200) << variable;
        zvPlatform::setEnvironment(variable, "");
    }
    EXPECT_EQ(outcomeOf(server).failure, Failure::tls) << "without any";
    // The client configuration comes first.
    const std::string other = m_folder.write("other.pem", "");
    writeCertificate(other, TlsAuthority("other").identity());
    zvPlatform::setEnvironment("CURL_CA_BUNDLE", m_strCaFile.c_str());
    configure("http-ca-file=" + other + "\n");
    EXPECT_EQ(outcomeOf(server).tlsFailure, TlsFailure::unknownIssuer);
}

TEST_F(zvTlsTest, AServerMayWantAClientCertificate) {
    const TlsIdentity identity = m_authority.issue(thisHost);
    LoopbackServer server(m_authority.strictServer(identity));
    configure(caLine());
    EXPECT_TRUE(isRefused(outcomeOf(server)));

    const TlsIdentity client = m_authority.issue("DNS:client");
    const std::string certificate = m_folder.file("client.pem");
    const std::string bundle = m_folder.file("client.p12");
    writeCertificate(certificate, client);
    writeKey(m_folder.file("key.pem"), client);
    writeKey(m_folder.file("locked.pem"), client, "s3cret");
    writePkcs12(bundle, client, "s3cret");
    zvPlatform::setEnvironment("ZV_TEST_KEY_PASSWORD", "s3cret");
    const std::string clientLine = "http-client-certificate=" + certificate + "\nhttp-client-key=";
    const std::string password = "http-client-key-password-env=ZV_TEST_KEY_PASSWORD\n";
    const struct {
        const char* name;
        std::string lines;
        int status;
    } cases[] = {
        {"key", clientLine + m_folder.file("key.pem") + "\n", 200},
        {"locked key", clientLine + m_folder.file("locked.pem") + "\n" + password, 200},
        {"PKCS#12", "http-client-certificate=" + bundle + "\n" + password, 200},
        {"certificate without its key", "http-client-certificate=" + certificate + "\n", 0},
        {"a key that is not there", clientLine + m_folder.file("none.pem") + "\n", 0},
    };
    for (const auto& [name, lines, status] : cases) {
        configure(caLine() + lines);
        const zvRequestOutcome outcome = outcomeOf(server);
        EXPECT_EQ(outcome.status, status) << name << ": " << narrow(outcome.errorText);
        EXPECT_EQ(outcome.failure, status == 200 ? Failure::none : Failure::settings) << name;
    }
    EXPECT_NE(m_strMessage.find("none.pem\": No such file or directory"), std::string::npos) << m_strMessage;
    for (const std::string& line : zvRecordingLogger::lines()) {
        EXPECT_EQ(line.find("s3cret"), std::string::npos) << line;
    }

    configure(caLine() + clientLine + m_folder.file("key.pem") + "\n");
    const TlsIdentity stranger = TlsAuthority("other").issue("DNS:client");
    writeCertificate(certificate, stranger);
    writeKey(m_folder.file("key.pem"), stranger);
    EXPECT_TRUE(isRefused(outcomeOf(server))) << "a stranger";
    EXPECT_EQ(server.m_requests, 3);
}

TEST_F(zvTlsTest, AnAlertIsTheServersRefusal) {
    const char refusal[] =
        "OpenSSL SSL_read: error:0A00045C:SSL routines::tlsv13 alert certificate required, errno 0";
    EXPECT_EQ(zvCurlFailure::kindOf(CURLE_RECV_ERROR, refusal), Failure::tls);
    EXPECT_EQ(zvCurlFailure::tlsKindOf(CURLE_RECV_ERROR, 0, refusal), TlsFailure::refused);
    EXPECT_EQ(zvCurlFailure::kindOf(CURLE_RECV_ERROR, "Recv failure: Connection reset by peer"),
              Failure::connection);
}

TEST_F(zvTlsTest, ACaFileThatCannotBeReadIsNamed) {
    const TlsIdentity identity = m_authority.issue(thisHost);
    LoopbackServer server(m_authority.server(identity));
    const std::string missing = m_folder.file("none.pem");
    const std::string invalid = m_folder.write("invalid.pem", "no certificate\n");
    for (const auto& [file, reason] :
         {std::pair{missing, "\": No such file or directory"}, {invalid, "\""}}) {
        configure("http-ca-file=" + file + "\n");
        EXPECT_EQ(outcomeOf(server).failure, Failure::settings) << file;
        const std::string ending = ": \"" + file + reason;
        ASSERT_GT(m_strMessage.size(), ending.size());
        EXPECT_EQ(m_strMessage.substr(m_strMessage.size() - ending.size()), ending);
        EXPECT_NE(zvRecordingLogger::lines("error").back().find(file), std::string::npos);
    }
}

}  // namespace
#endif
