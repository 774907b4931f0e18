#pragma once

#include "reedit/page_splices.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The events of a BODY tag that effects use.
enum class BodyEvent
{
    OnLoad,
    OnUnload,
};

/// A call in an event attribute of a BODY tag.
struct BodyCall
{
    BodyEvent Event = BodyEvent::OnLoad;
    CodeSpan Call;
    CodeSpan Value;     ///< of the attribute, without quotes
    CodeSpan Attribute; ///< as a whole
};

/// Calls `take` with each statement in the event attributes of a BODY tag, those that are dropped
/// because another attribute of the name comes first among them.
void ForEachCall(std::string_view page, CodeSpan bodyTag,
                 const std::function<void(const BodyCall&)>& take);

/// All of them.
std::vector<BodyCall> CallsIn(std::string_view page, CodeSpan bodyTag);

/// The name of the function in front of its "("; empty when the statement is no call of a function
/// by its name.
std::string_view FunctionOf(std::string_view call);

/// What goes with a call: its attribute when that holds nothing else, with the blanks around it
/// that an insertion wrote; else one semicolon. What else runs in the event stays.
CodeSpan CutOf(std::string_view page, const BodyCall& call);

/// What is to be put into the page so that the BODY tag makes the call in that event, before
/// anything that it does there already. A call that is put in so can be told from an inserted one:
/// its attribute is "onLoad", or has a semicolon behind the call.
Splice JoinCall(std::string_view page, CodeSpan bodyTag, BodyEvent event, std::string_view call);

/// What is to be put into the page so that this call takes the place of another one.
Splice ReplaceCall(std::string_view page, const BodyCall& old, std::string_view call);

} // namespace orvane
