#include "script/answer_queue.h"

#include <algorithm>

namespace quendal {

namespace {

bool asks(BoxKind box) {
    return box == BoxKind::YesNo || box == BoxKind::Input || box == BoxKind::Calculator;
}

bool fits(BoxKind box, BoxReply::Kind reply) {
    using Kind = BoxReply::Kind;
    switch (box) {
    case BoxKind::YesNo:
        return reply == Kind::Yes || reply == Kind::No;
    case BoxKind::Input:
        return reply == Kind::Text || reply == Kind::Cancel;
    case BoxKind::Calculator:
        return reply == Kind::Value || reply == Kind::Preset || reply == Kind::Cancel;
    default:
        return reply == Kind::Ok;
    }
}

} // namespace

std::optional<BoxReply> AnswerQueue::take(const BoxEvent& box) {
    const auto found = std::find_if(replies_.begin(), replies_.end(), [&](const BoxReply& reply) {
        return fits(box.kind, reply.kind);
    });
    if (found == replies_.end()) {
        return asks(box.kind) ? std::nullopt : std::optional(BoxReply{});
    }
    BoxReply reply = std::move(*found);
    replies_.erase(found);
    return reply;
}

std::string answerText(const BoxReply& reply) {
    switch (reply.kind) {
    case BoxReply::Kind::Ok:
        return "ok";
    case BoxReply::Kind::Yes:
        return "yes";
    case BoxReply::Kind::No:
        return "no";
    case BoxReply::Kind::Text:
        return "text " + reply.text;
    case BoxReply::Kind::Value:
        return "value " + reply.text;
    case BoxReply::Kind::Preset:
        return "preset " + std::to_string(reply.preset);
    case BoxReply::Kind::Cancel:
        return "cancel";
    }
    return {};
}

} // namespace quendal
