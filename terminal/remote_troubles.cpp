#include "terminal/remote_troubles.h"

#include <cstdio>

namespace jogeon::terminal {
namespace {

QString SentenceOf(remote::Trouble::Kind kind) {
    switch (kind) {
        case remote::Trouble::Kind::Unreachable:
            return RemoteTroubles::tr("서버에 연결할 수 없습니다.");
        case remote::Trouble::Kind::Late:
            return RemoteTroubles::tr("서버가 제때 응답하지 않았습니다.");
        case remote::Trouble::Kind::OtherProtocol:
            return RemoteTroubles::tr("서버의 버전이 터미널과 다릅니다.");
        case remote::Trouble::Kind::Failed:
            break;
    }
    return RemoteTroubles::tr("서버가 요청을 처리하지 못했습니다.");
}

}  // namespace

void RemoteTroubles::Tell(const remote::Trouble& trouble) {
    std::fprintf(stderr, "jogeon: %s\n", trouble.line.c_str());
    emit Told(SentenceOf(trouble.kind));
}

}  // namespace jogeon::terminal
