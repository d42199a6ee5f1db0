#ifndef ZV_TLS_AUTHORITY_H
#define ZV_TLS_AUTHORITY_H

#include <httplib.h>

#ifdef CPPHTTPLIB_OPENSSL_SUPPORT
#include <openssl/pem.h>
#include <openssl/pkcs12.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <memory>
#include <string>

/// A certificate and its key.
struct TlsIdentity {
    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key{EVP_EC_gen("P-256"), &EVP_PKEY_free};
    std::unique_ptr<X509, decltype(&X509_free)> certificate{X509_new(), &X509_free};
};

/// A certificate authority of a test's own. Times are in seconds from now.
class TlsAuthority {
public:
    static constexpr long hour = 3600;

    explicit TlsAuthority(const char* name = "authority") { sign(m_identity, name, "", -hour, hour); }

    /// A certificate for `host`, as in "IP:127.0.0.1" and "DNS:example.com".
    TlsIdentity issue(const std::string& host, long begin = -hour, long end = hour) const {
        TlsIdentity identity;
        sign(identity, "server", host, begin, end);
        return identity;
    }

    std::unique_ptr<httplib::Server> server(const TlsIdentity& identity) const {
        return std::make_unique<httplib::SSLServer>(identity.certificate.get(), identity.key.get());
    }
    /// One that wants a client certificate of this authority.
    std::unique_ptr<httplib::Server> strictServer(const TlsIdentity& identity) const {
        X509_STORE* const trusted = X509_STORE_new();
        X509_STORE_add_cert(trusted, m_identity.certificate.get());
        return std::make_unique<httplib::SSLServer>(identity.certificate.get(), identity.key.get(), trusted);
    }

    const TlsIdentity& identity() const { return m_identity; }
    /// The file name under which OpenSSL looks the authority up in a folder.
    std::string fileName() const {
        char name[20];
        std::snprintf(name, sizeof(name), "%08lx.0",
                      X509_NAME_hash_ex(X509_get_subject_name(m_identity.certificate.get()), nullptr, nullptr,
                                        nullptr));
        return name;
    }

private:
    void sign(TlsIdentity& identity, const char* name, const std::string& host, long begin, long end) const {
        X509* const certificate = identity.certificate.get();
        X509_set_version(certificate, 2);
        X509_gmtime_adj(X509_getm_notBefore(certificate), begin);
        X509_gmtime_adj(X509_getm_notAfter(certificate), end);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate), "CN", MBSTRING_ASC,
                                   reinterpret_cast<const unsigned char*>(name), -1, -1, 0);
        X509_set_issuer_name(certificate, X509_get_subject_name(m_identity.certificate.get()));
        X509_set_pubkey(certificate, identity.key.get());
        addExtension(certificate, NID_basic_constraints, host.empty() ? "critical,CA:TRUE" : "CA:FALSE");
        if (!host.empty()) {
            addExtension(certificate, NID_subject_alt_name, host.c_str());
        }
        X509_sign(certificate, m_identity.key.get(), EVP_sha256());
    }

    static void addExtension(X509* certificate, int kind, const char* value) {
        X509_EXTENSION* const extension = X509V3_EXT_conf_nid(nullptr, nullptr, kind, value);
        X509_add_ext(certificate, extension, -1);
        X509_EXTENSION_free(extension);
    }

    TlsIdentity m_identity;
};

/// Writes the certificate in PEM.
inline void writeCertificate(const std::string& path, const TlsIdentity& identity) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"), &std::fclose);
    PEM_write_X509(file.get(), identity.certificate.get());
}

/// Writes the key in PEM, encrypted unless the password is empty.
inline void writeKey(const std::string& path, const TlsIdentity& identity, const std::string& password = "") {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"), &std::fclose);
    PEM_write_PKCS8PrivateKey(file.get(), identity.key.get(), password.empty() ? nullptr : EVP_aes_256_cbc(),
                              password.c_str(), static_cast<int>(password.size()), nullptr, nullptr);
}

/// Writes certificate and key in PKCS#12.
inline void writePkcs12(const std::string& path, const TlsIdentity& identity, const std::string& password) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"), &std::fclose);
    PKCS12* const bundle = PKCS12_create(password.c_str(), "client", identity.key.get(),
                                         identity.certificate.get(), nullptr, 0, 0, 0, 0, 0);
    i2d_PKCS12_fp(file.get(), bundle);
    PKCS12_free(bundle);
}
#endif

#endif
