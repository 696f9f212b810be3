#include "host/job/TicketSeal.h"

#include <QList>

#include <sodium.h>

namespace kesta::host {
namespace {

constexpr auto kText = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
constexpr qsizetype kTagBytes = 4; // "kk1-", "kp1-", "ks1-"
constexpr qsizetype kKeyText = (crypto_box_PUBLICKEYBYTES * 4 + 2) / 3;
constexpr qsizetype kIDDigits = 8;
constexpr std::size_t kPadding = 256; // the content's length is hidden up to a multiple of this
static_assert(crypto_box_PUBLICKEYBYTES == 32 && crypto_box_SECRETKEYBYTES == 32);

const unsigned char* Read(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

unsigned char* Written(QByteArray& bytes)
{
    return reinterpret_cast<unsigned char*>(bytes.data());
}

bool IsReady()
{
    return sodium_init() >= 0;
}

QByteArray Hash(const QByteArray& bytes, qsizetype size)
{
    QByteArray hash(size, Qt::Uninitialized);
    crypto_generichash(Written(hash), size, Read(bytes), bytes.size(), nullptr, 0);
    return hash;
}

QByteArray KeyID(const QByteArray& publicKey)
{
    return Hash(publicKey, crypto_generichash_BYTES_MIN).first(kIDDigits / 2).toHex();
}

QByteArray WriteKey(QByteArrayView tag, const QByteArray& key, const QByteArray& keyID)
{
    return tag.toByteArray() + key.toBase64(kText) + '-' + keyID;
}

// Of two texts that stand for the same bytes only the one that would be written is read.
std::optional<QByteArray> FromText(const QByteArray& text)
{
    const auto decoded = QByteArray::fromBase64Encoding(text, kText | QByteArray::AbortOnBase64DecodingErrors);
    return decoded && decoded.decoded.toBase64(kText) == text ? std::optional(*decoded) : std::nullopt;
}

// Key and ID of a key's text, which are not compared yet.
struct KeyParts {
    QByteArray key;
    QByteArray keyID;
};

std::optional<KeyParts> ReadKey(const QByteArray& text, QByteArrayView tag)
{
    if (!text.startsWith(tag) || text.size() != kTagBytes + kKeyText + 1 + kIDDigits)
        return std::nullopt;
    const auto key = FromText(text.mid(kTagBytes, kKeyText));
    if (!key || key->size() != qsizetype(crypto_box_PUBLICKEYBYTES) || text[kTagBytes + kKeyText] != '-')
        return std::nullopt;
    return KeyParts{*key, text.last(kIDDigits)};
}

// A public key's 32 bytes, when its text is whole.
std::optional<QByteArray> ReadPublicKey(const QByteArray& text)
{
    const std::optional<KeyParts> parts = ReadKey(text, "kk1-");
    return parts && KeyID(parts->key) == parts->keyID ? std::optional(parts->key) : std::nullopt;
}

// The private key in a line whose ID names its own public key.
struct PrivateKey {
    QByteArray secret;
    QByteArray publicKey = QByteArray(crypto_box_PUBLICKEYBYTES, Qt::Uninitialized);
    QByteArray keyID;

    explicit PrivateKey(KeyParts&& parts) : secret(std::move(parts.key)), keyID(std::move(parts.keyID)) // the only copy
    {
        crypto_scalarmult_base(Written(publicKey), Read(secret));
    }
    ~PrivateKey() { Wipe(secret); }
    PrivateKey(const PrivateKey&) = delete;
    PrivateKey& operator=(const PrivateKey&) = delete;

    bool isWhole() const { return KeyID(publicKey) == keyID; }
};

OpenedSeal OpenWith(const PrivateKey& key, const QByteArray& box)
{
    QByteArray content(box.size() - qsizetype(crypto_box_SEALBYTES), Qt::Uninitialized);
    std::size_t size = 0;
    const bool opened =
        crypto_box_seal_open(Written(content), Read(box), box.size(), Read(key.publicKey), Read(key.secret)) == 0 &&
        sodium_unpad(&size, Read(content), content.size(), kPadding) == 0;
    if (!opened)
        return {OpenedSeal::Status::Damaged};
    content.truncate(static_cast<qsizetype>(size));
    return {OpenedSeal::Status::Opened, content};
}

} // namespace

std::optional<TicketKeys> MakeTicketKeys()
{
    if (!IsReady())
        return std::nullopt;
    QByteArray open(crypto_box_PUBLICKEYBYTES, Qt::Uninitialized);
    QByteArray secret(crypto_box_SECRETKEYBYTES, Qt::Uninitialized);
    crypto_box_keypair(Written(open), Written(secret));
    const QByteArray keyID = KeyID(open);
    TicketKeys keys{WriteKey("kk1-", open, keyID), WriteKey("kp1-", secret, keyID)};
    Wipe(secret);
    return keys;
}

std::optional<Message> TicketKeyProblem(const QByteArray& publicKey)
{
    if (!IsReady())
        return Say("Ticket Key No Encryption");
    if (publicKey.isEmpty())
        return Say("Ticket Key Empty");
    if (!publicKey.startsWith("kk1-"))
        return Say("Ticket Key Of Unknown Kind");
    return SealBytes({}, publicKey).isEmpty() ? std::optional(Say("Ticket Key Damaged")) : std::nullopt;
}

QByteArray SealBytes(const QByteArray& content, const QByteArray& publicKey)
{
    const std::optional<QByteArray> key = IsReady() ? ReadPublicKey(publicKey) : std::nullopt;
    if (!key)
        return {};
    QByteArray padded = content;
    padded.resize(content.size() + qsizetype(kPadding));
    std::size_t size = 0;
    sodium_pad(&size, Written(padded), content.size(), kPadding, padded.size());
    QByteArray box(static_cast<qsizetype>(size + crypto_box_SEALBYTES), Qt::Uninitialized);
    const bool closed = crypto_box_seal(Written(box), Read(padded), size, Read(*key)) == 0; // not for a weak key
    Wipe(padded);
    return closed ? "ks1-" + KeyID(*key) + '-' + box.toBase64(kText) : QByteArray();
}

OpenedSeal OpenSeal(const QByteArray& sealedBytes, const QByteArray& keys)
{
    constexpr qsizetype kBeforeText = kTagBytes + kIDDigits + 1;
    const auto box = FromText(sealedBytes.mid(kBeforeText));
    if (!IsReady() || !sealedBytes.startsWith("ks1-") || sealedBytes.mid(kBeforeText - 1, 1) != "-" || !box ||
        box->size() <= qsizetype(crypto_box_SEALBYTES))
        return {OpenedSeal::Status::Damaged};
    const QByteArray keyID = sealedBytes.mid(kTagBytes, kIDDigits);
    auto status = OpenedSeal::Status::DamagedKey;
    for (const QByteArray& line : keys.split('\n')) {
        const QByteArray text = line.trimmed();
        if (text.isEmpty() || text.startsWith('#'))
            continue;
        std::optional<KeyParts> parts = ReadKey(text, "kp1-");
        const std::optional<PrivateKey> key =
            parts ? std::optional<PrivateKey>(std::in_place, std::move(*parts)) : std::nullopt;
        if (!key || !key->isWhole())
            return {OpenedSeal::Status::DamagedKey};
        if (key->keyID == keyID)
            return OpenWith(*key, *box);
        status = OpenedSeal::Status::NoKey;
    }
    return {status};
}

QByteArray TicketDigest(const QByteArray& bytes)
{
    return IsReady() ? Hash(bytes, crypto_generichash_BYTES) : QByteArray();
}

void Wipe(QByteArray& secret)
{
    sodium_memzero(secret.data(), secret.size());
    secret.clear();
}

} // namespace kesta::host
