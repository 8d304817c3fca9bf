#include "Fuzz.h"

#include <ozm_audit/Checkpoint.h>
#include <ozm_audit/Proof.h>
#include <ozm_common_stable/Result.h>

using namespace ozm;

// Checkpoints, proofs and keys come from outside, by mail and on paper.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    if (const auto checkpoint = audit::Checkpoint::fromNote(bytes)) {
        fuzz::require(checkpoint.value().note == bytes, "the note stays");
        const auto again = audit::Checkpoint::fromNote(bytes);
        fuzz::require(again && again.value().text() == checkpoint.value().text(), "the signed part is one");
    }
    if (const auto proof = audit::Proof::fromText(bytes)) {
        const QByteArray text = proof.value().toText();
        const auto again = audit::Proof::fromText(text);
        fuzz::require(again && again.value().toText() == text, "a proof is written as it was read");
        (void)proof.value().proves(bytes);
    }
    if (const auto key = audit::PublicKey::fromText(QString::fromUtf8(bytes))) {
        const auto again = audit::PublicKey::fromText(key.value().toText());
        fuzz::require(again && again.value().toText() == key.value().toText(),
                      "a key is written as it was read");
        (void)key.value().verifies(bytes);
    }
    return 0;
}
