#include "document/DocumentLinks.h"

#include "document/EditDistance.h"

#include <algorithm>

namespace {

void Connect(LinkKind kind, MemoryFeature from, MemoryFeature to) {
    switch (kind) {
    case LinkKind::Father:
        from.Father(to);
        break;
    case LinkKind::PointedAtBy:
        from.PointedAtBy(to);
        break;
    case LinkKind::Member:
        from.AddMember(to);
        break;
    case LinkKind::Group:
        from.SetGroup(to);
        break;
    case LinkKind::Connector:
        from.AddConnector(to);
        break;
    case LinkKind::MasterConnector:
        from.AddMaster(to);
        break;
    case LinkKind::SlaveConnector:
        from.AddSlave(to);
        break;
    }
}

/// The father of each object: by default the object around it in the file, the history for steps and the model for job
/// containers; otherwise the one that its key "father" refers to.
class Fathers {
public:
    explicit Fathers(const LoadedDocument& loaded) {
        EntryIndex history = 0; // the last one; it comes after the case of a step if it belongs to this case
        for (const DocumentEntry& entry : loaded.entries) {
            const bool isJobs = entry.key == DocumentKey::JobContainers || entry.key == DocumentKey::Jobs;
            const bool underHistory = entry.key == DocumentKey::Steps && history > entry.parent;
            const bool underModel = isJobs && loaded.entries[entry.parent].key == DocumentKey::Cases;
            m_father.push_back(underHistory ? history : underModel ? 0 : entry.parent);
            if (entry.key == DocumentKey::History)
                history = static_cast<EntryIndex>(m_father.size() - 1);
        }
        m_visited.resize(m_father.size());
    }
    void Set(EntryIndex child, EntryIndex father) { m_father[child] = father; }

    /// Returns true if the chain of fathers that begins at `from` contains an object twice. All calls together visit
    /// each object once.
    bool IsOnCycle(EntryIndex from) {
        ++m_walk;
        for (EntryIndex at = from; at != DocumentEntry::kNone; at = m_father[at]) {
            if (m_visited[at] != 0)
                return m_visited[at] == m_walk;
            m_visited[at] = m_walk;
        }
        return false;
    }

private:
    std::vector<EntryIndex> m_father;
    std::vector<std::uint32_t> m_visited; // the number of the walk that visited the object; 0 if none
    std::uint32_t m_walk = 0;
};

} // namespace

EntryIndex DocumentLinks::TargetOf(const LoadedDocument& loaded, const Link& link) {
    if (!link.id)
        return link.target;
    const std::string id = link.id.Text();
    const auto found = loaded.ids.find(id);
    if (found != loaded.ids.end())
        return found->second;
    std::vector<std::string> known;
    for (const auto& [name, entry] : loaded.ids)
        known.push_back(name);
    std::sort(known.begin(), known.end());
    link.id.ThrowError("no object has the id \"" + id + "\"; " +
                       (known.empty() ? "the file contains no ids" : Suggestion(id, known)));
}

void DocumentLinks::ResolveLinks(LoadedDocument& loaded) const {
    Fathers fathers(loaded);
    for (const Link& link : m_links) {
        const EntryIndex target = TargetOf(loaded, link);
        if (link.kind == LinkKind::Member && target == link.from)
            link.id.ThrowError("a set cannot contain itself");
        if (link.kind == LinkKind::Father)
            fathers.Set(link.from, target);
        Connect(link.kind, loaded.entries[link.from].feature,
                target == DocumentEntry::kNone ? MemoryFeature() : loaded.entries[target].feature);
    }
    for (const Link& link : m_links)
        if (link.kind == LinkKind::Father && fathers.IsOnCycle(link.from))
            link.id.ThrowError("the fathers form a cycle; change a key \"father\"");
}
