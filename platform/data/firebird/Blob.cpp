#include "platform/data/firebird/Blob.h"

#include <cstring>
#include "platform/data/firebird/FbApi.h"

namespace fichario {

namespace {

// Over the wire 64 KiB and more lose bytes in silence when written and never end when read.
constexpr unsigned kSegment = 32000;

// No kind and no character set on either side: nothing is brought from one to the other.
constexpr unsigned char kAsIs[] = {isc_bpb_version1,
                                   isc_bpb_source_type,
                                   1,
                                   0,
                                   isc_bpb_source_interp,
                                   1,
                                   0,
                                   isc_bpb_target_type,
                                   1,
                                   0,
                                   isc_bpb_target_interp,
                                   1,
                                   0};

ISC_QUAD QuadOf(int64_t id) {
    ISC_QUAD quad;
    std::memcpy(&quad, &id, sizeof quad);
    return quad;
}

void PutAll(Firebird::ThrowStatusWrapper& status, Firebird::IBlob& blob, const QByteArray& bytes) {
    for (qsizetype at = 0; at < bytes.size(); at += kSegment) {
        const auto length = static_cast<unsigned>(std::min<qsizetype>(kSegment, bytes.size() - at));
        StopIfAsked();
        blob.putSegment(&status, length, bytes.constData() + at);
    }
}

QByteArray GetAll(Firebird::ThrowStatusWrapper& status, Firebird::IBlob& blob) {
    QByteArray bytes;
    QByteArray segment(kSegment, Qt::Uninitialized);
    for (;;) {
        StopIfAsked();
        unsigned length = 0;
        const int result = blob.getSegment(&status, kSegment, segment.data(), &length);
        if (result != Firebird::IStatus::RESULT_OK && result != Firebird::IStatus::RESULT_SEGMENT)
            return bytes;
        bytes.append(segment.constData(), length);
    }
}

// Does `work` on the blob and closes it; after an error only lets it go.
template <class Work>
void UseBlob(Firebird::ThrowStatusWrapper& status, Firebird::IBlob* blob, Work work) {
    try {
        work();
        blob->close(&status);
    } catch (...) {
        blob->release();
        throw;
    }
}

}  // namespace

int64_t WriteBlob(Attachment& attachment, Transaction& transaction, const QByteArray& bytes) {
    ISC_QUAD quad = {};
    attachment.Call(CallKind::Blob, [&](Firebird::ThrowStatusWrapper& status) {
        Firebird::IBlob* blob =
            attachment.Handle()->createBlob(&status, transaction.Handle(), &quad, 0, nullptr);
        UseBlob(status, blob, [&] { PutAll(status, *blob, bytes); });
    });
    int64_t id;
    std::memcpy(&id, &quad, sizeof id);
    return id;
}

QByteArray ReadBlob(Attachment& attachment, Transaction& transaction, int64_t id, bool asIs) {
    QByteArray bytes;
    const unsigned options = asIs ? sizeof kAsIs : 0;
    attachment.Call(CallKind::Blob, [&](Firebird::ThrowStatusWrapper& status) {
        ISC_QUAD quad = QuadOf(id);
        Firebird::IBlob* blob =
            attachment.Handle()->openBlob(&status, transaction.Handle(), &quad, options, kAsIs);
        UseBlob(status, blob, [&] { bytes = GetAll(status, *blob); });
    });
    return bytes;
}

// The identity begins with the number of the table whose record holds it.
bool IsTemporaryBlob(int64_t id) {
    return (QuadOf(id).gds_quad_high & 0xFFFF) == 0;
}

}  // namespace fichario
