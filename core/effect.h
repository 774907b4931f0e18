#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "core/surroundings.h"

#include <optional>
#include <variant>

namespace orvane {

// An effect is a struct of parameters with `Kinds`, the kinds that it is made as, and `Pages`, the
// number of its wizard's pages. Beside it stand these functions; where one is missing, what is said
// here holds:
//
//   ForEachField(effect, field)      calls `field` with the name of each field and the field
//   CheckPage(effect, page)          the complaint that keeps the author on a page, or nothing;
//                                    without it, Check(effect) is asked on every page
//   PageAfter(effect, page)          the page that follows, or -1; without it, the next one
//   Tidy(effect)                     mends fields that passed the checks; the window shows them so
//   Generate(effect, surroundings)   the payload of an effect that passed the checks and was
//                                    tidied; Generate(effect) where it needs to know nothing else
//   LookOf(effect)                   the rows, labels and tips that its values ask for
//   HintsOf(effect)                  words on values that stop nothing
//   ReadTag(effect, tag)             fills the fields from a pasted tag; without it, none is read
//   ChooseKind(effect, kind)         makes a fresh effect one of that kind
//   Recall(effect, settings)         fills a fresh effect with what earlier ones left
//   Remember(effect, settings)       leaves that for later ones
//
// Pages are counted from 0. What an effect has besides that is made for today's browsers is said
// in services/block_fields.h, and reedit/block_reader.h reads it back from a page.

/// A fresh effect of one of its kinds.
template <class Effect>
Effect FreshOf(EffectKind kind)
{
    Effect effect;
    if constexpr (requires { ChooseKind(effect, kind); })
        ChooseKind(effect, kind);
    return effect;
}

/// The page that follows on this one; -1 when the wizard ends with it.
template <class Effect>
int NextPageOf(const Effect& effect, int page)
{
    if constexpr (requires { PageAfter(effect, page); })
        return PageAfter(effect, page);
    else
        return page + 1 < Effect::Pages ? page + 1 : -1;
}

/// The complaint that keeps the author on a page, or nothing.
template <class Effect>
std::optional<Complaint> ComplaintOn(const Effect& effect, int page)
{
    if constexpr (requires { CheckPage(effect, page); })
        return CheckPage(effect, page);
    else
        return Check(effect);
}

/// The first complaint on the pages that the author comes by, or nothing when the wizard may end.
template <class Effect>
std::optional<Complaint> FirstComplaint(const Effect& effect)
{
    for (int page = 0; page >= 0; page = NextPageOf(effect, page))
        if (auto complaint = ComplaintOn(effect, page))
            return complaint;
    return std::nullopt;
}

/// Mends the fields as the wizard does when it ends. Expects an effect without a complaint.
template <class Effect>
void TidyFields(Effect& effect)
{
    if constexpr (requires { Tidy(effect); })
        Tidy(effect);
}

/// What the effect puts into a page, with its files. Expects an effect without a complaint whose
/// fields are tidied.
template <class Effect>
EffectPayload PayloadOf(const Effect& effect, const Surroundings& surroundings)
{
    if constexpr (requires { Generate(effect, surroundings); })
        return Generate(effect, surroundings);
    else
        return Generate(effect);
}

/// What a wizard that ends now would hand over, or what keeps it from that.
using Deliverable = std::variant<EffectPayload, Complaint>;

/// The same of these fields: checked and tidied as when the wizard ends.
template <class Effect>
Deliverable DeliverableOf(Effect effect, const Surroundings& surroundings)
{
    if (auto complaint = FirstComplaint(effect))
        return *std::move(complaint);
    TidyFields(effect);
    return PayloadOf(effect, surroundings);
}

} // namespace orvane
