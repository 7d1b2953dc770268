#include "tools/prove/search.h"

#include <algorithm>
#include <thread>

namespace zentrox::prove {

namespace {

constexpr std::size_t batchStates = 1024;
constexpr std::size_t batchesAtOnce = 32;
constexpr std::chrono::milliseconds tellEvery{250};

StateMask maskOf(const Program& program, const Plan& plan) {
    if (!plan.mask.empty()) return plan.mask;
    const auto words = static_cast<std::size_t>(program.layout.words());
    const auto keys = plan.projector ? static_cast<std::size_t>(plan.projector->words()) : words;
    StateMask mask(keys, ~std::uint64_t{0});
    if (plan.projector) mask.resize(keys + words);
    return mask;
}

}  // namespace

// Some states of one shard, and what their steps have led to.
struct Search::Batch {
    std::size_t shard = 0;
    std::size_t first = 0;
    std::size_t count = 0;

    struct Target {
        StateId from;
        std::uint32_t action;
        std::uint64_t hash;
        StateId to = nobody;
    };
    std::vector<Target> targets;
    std::vector<std::uint64_t> words;  // of the targets
    std::vector<std::uint8_t> marks;   // of the states
    struct Ended {
        StateId from;
        Action action;
        std::int16_t ending;
    };
    std::vector<Ended> endings;
    std::vector<Late> late;
    std::uint64_t steps = 0;
};

Search::Search(const Program& program, Plan plan, Bounds bounds)
    : program_(program),
      plan_(std::move(plan)),
      bounds_(bounds),
      keyWords_(plan_.projector ? plan_.projector->words() : 0),
      stacks_(program),
      store_(keyWords_ + program.layout.words(), maskOf(program, plan_), plan_.novelties),
      seen_(program),
      done_(shardCount) {
    for (std::size_t i = 0; i < threads(); ++i) machines_.push_back(machine());
}

Machine Search::machine() {
    Machine machine(program_, stacks_, plan_.evilCounts);
    machine.actionMatters = plan_.actionMatters;
    return machine;
}

std::size_t Search::threads() const {
    return bounds_.threads != 0 ? bounds_.threads : std::max(1U, std::thread::hardware_concurrency());
}

double Search::seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - started_).count();
}

void Search::run() {
    started_ = told_ = std::chrono::steady_clock::now();
    State first;
    const Outcome outcome = machines_.front().begin(first);
    for (const std::int16_t ending : outcome.endings) noteHit(ending, nobody, {}, 0);
    if (outcome.kind == Outcome::Kind::on) {
        std::array<std::uint64_t, 2 * mostWords> packed;
        const std::uint64_t* const words = pack(first, packed);
        if (outcome.ended)
            late_.push_back({nobody, 0, {words, words + store_.wordCount()}});
        else
            addFirst(words, nobody, 0);
    }
    for (std::uint32_t level = 0; complete_ && takeLevel(level); ++level) {
    }
    // What lies behind an ending comes last, so that what can be seen without one is known apart.
    behindEndings_ = true;
    for (const Late& late : late_)
        if (const auto added = addFirst(late.words.data(), late.from, late.action); added.isNew)
            store_.mark(added.id) |= mark::after;
    late_.clear();
    for (std::uint32_t level = 0; complete_ && takeLevel(level); ++level) {
    }
    for (const Machine& machine : machines_) seen_.add(machine.seen);
    leaveOpen();
}

Store::Added Search::addFirst(const std::uint64_t* words, StateId from, std::uint32_t action) {
    return store_.add(words, store_.hashOf(words), from, action);
}

// The words as they are kept: what tells the state apart, then the state.
const std::uint64_t* Search::pack(const State& state, std::array<std::uint64_t, 2 * mostWords>& packed) const {
    if (plan_.projector == nullptr) return state.words.data();
    plan_.projector->project(state, packed.data());
    std::copy_n(state.words.begin(), program_.layout.words(), packed.begin() + keyWords_);
    return packed.data();
}

void Search::load(StateId id, State& state) const {
    std::copy_n(store_.words(id) + keyWords_, program_.layout.words(), state.words.begin());
}

// Looks at all states that are open now. False when there is none.
bool Search::takeLevel(std::uint32_t level) {
    std::vector<Batch> batches;
    std::array<std::size_t, shardCount> end{};
    for (std::size_t shard = 0; shard < shardCount; ++shard) end[shard] = store_.size(shard);
    bool any = false;
    for (std::size_t shard = 0; shard < shardCount; ++shard)
        while (done_[shard] < end[shard]) {
            any = true;
            Batch batch;
            batch.shard = shard;
            batch.first = done_[shard];
            batch.count = std::min(batchStates, end[shard] - done_[shard]);
            done_[shard] += batch.count;
            batches.push_back(std::move(batch));
            if (batches.size() < batchesAtOnce) continue;
            work(batches, level);
            batches.clear();
            if (!complete_) return false;
        }
    if (!batches.empty()) work(batches, level);
    return any;
}

void Search::work(std::vector<Batch>& batches, std::uint32_t level) {
    onAllThreads(batches.size(),
                 [&](std::size_t task, std::size_t thread) { expand(batches[task], machines_[thread]); });
    onAllThreads(shardCount, [&](std::size_t shard, std::size_t) { insert(batches, shard); });
    for (Batch& batch : batches) settle(batch, level);
    if (mustStop()) complete_ = false;
}

template <class Work>
void Search::onAllThreads(std::size_t tasks, const Work& work) const {
    std::atomic<std::size_t> next = 0;
    const auto take = [&](std::size_t thread) {
        for (std::size_t task = next++; task < tasks; task = next++) work(task, thread);
    };
    std::vector<std::thread> helpers;
    for (std::size_t thread = 1; thread < std::min(threads(), tasks); ++thread) helpers.emplace_back(take, thread);
    take(0);
    for (std::thread& helper : helpers) helper.join();
}

void Search::expand(Batch& batch, Machine& machine) const {
    batch.marks.assign(batch.count, 0);
    for (std::size_t i = 0; i < batch.count; ++i)
        expandState(batch, machine, Store::idOf(batch.shard, batch.first + i));
}

void Search::expandState(Batch& batch, Machine& machine, StateId id) const {
    static thread_local std::vector<Action> actions;
    State from;
    load(id, from);
    machine.actions(from, actions);
    std::uint8_t& mark = batch.marks[(id >> shardBits) - batch.first];
    const auto words = static_cast<std::size_t>(store_.wordCount());
    for (const Action action : actions) {
        State state;
        load(id, state);
        const Outcome outcome = machine.step(state, action);
        ++batch.steps;
        if (outcome.ended) mark |= mark::goal;
        if (outcome.kind == Outcome::Kind::cut) mark |= mark::open;
        for (const std::int16_t ending : outcome.endings) batch.endings.push_back({id, action, ending});
        if (outcome.kind != Outcome::Kind::on) continue;
        std::array<std::uint64_t, 2 * mostWords> packed;
        const std::uint64_t* const to = pack(state, packed);
        if (outcome.ended && !behindEndings_) {
            batch.late.push_back({id, action.packed(), {to, to + words}});
        } else if (plan_.novelties ? std::memcmp(to, store_.words(id), words * sizeof(std::uint64_t)) != 0
                                   : !store_.isSame(to, store_.words(id))) {
            batch.targets.push_back({id, action.packed(), store_.hashOf(to)});
            batch.words.insert(batch.words.end(), to, to + words);
        }
    }
}

void Search::insert(std::vector<Batch>& batches, std::size_t shard) {
    const auto words = static_cast<std::size_t>(store_.wordCount());
    for (Batch& batch : batches)
        for (std::size_t i = 0; i < batch.targets.size(); ++i) {
            Batch::Target& target = batch.targets[i];
            if (Store::shardOf(target.hash) != shard) continue;
            const auto added = store_.add(&batch.words[i * words], target.hash, target.from, target.action);
            target.to = added.id;
            if (added.isNew && behindEndings_) store_.mark(added.id) |= mark::after;
        }
}

void Search::settle(Batch& batch, std::uint32_t level) {
    steps_ += batch.steps;
    for (std::size_t i = 0; i < batch.count; ++i)
        store_.mark(Store::idOf(batch.shard, batch.first + i)) |= batch.marks[i];
    for (const Batch::Ended& ended : batch.endings)
        noteHit(ended.ending, ended.from, ended.action,
                behindEndings_ ? static_cast<std::uint32_t>(wayTo(ended.from).size()) + 1 : level + 1);
    std::move(batch.late.begin(), batch.late.end(), std::back_inserter(late_));
    if (!plan_.edges || behindEndings_) return;
    Edges edges{batch.shard, batch.first, {}};
    std::size_t target = 0;
    for (std::size_t i = 0; i < batch.count; ++i) {
        const StateId id = Store::idOf(batch.shard, batch.first + i);
        const std::size_t count = edges.flat.size();
        edges.flat.push_back(0);
        for (; target < batch.targets.size() && batch.targets[target].from == id; ++target)
            edges.flat.push_back(batch.targets[target].to);
        const auto begin = edges.flat.begin() + static_cast<std::ptrdiff_t>(count) + 1;
        std::sort(begin, edges.flat.end());
        edges.flat.erase(std::unique(begin, edges.flat.end()), edges.flat.end());
        edges.flat[count] = static_cast<std::uint32_t>(edges.flat.size() - count - 1);
    }
    edges.flat.shrink_to_fit();
    edgeMemory_ += edges.flat.size() * sizeof(std::uint32_t) + sizeof(Edges);
    edges_.push_back(std::move(edges));
}

void Search::noteHit(std::int16_t ending, StateId from, Action action, std::uint32_t steps) {
    // Behind an ending only what the author has named is one of its own.
    if (behindEndings_ && !program_.endings[static_cast<std::size_t>(ending)].named) return;
    const auto [hit, isNew] = hits_.try_emplace(ending, Hit{from, action, steps, steps});
    if (!behindEndings_) hit->second.mostSteps = std::max(hit->second.mostSteps, steps);
    if (isNew || hit->second.steps <= steps) return;
    hit->second.from = from;
    hit->second.action = action;
    hit->second.steps = steps;
}

bool Search::mustStop() {
    const auto now = std::chrono::steady_clock::now();
    if (plan_.progress && now - told_ >= tellEvery) {
        std::uint64_t looked = 0;
        for (const std::size_t done : done_) looked += done;
        plan_.progress({store_.size(), store_.size() - looked, steps_, seconds()});
        told_ = now;
    }
    constexpr std::size_t megabyte = 1 << 20;
    const bool full = memory() / megabyte >= bounds_.megabytes;
    const bool many = bounds_.states && store_.size() >= *bounds_.states;
    const bool late = bounds_.seconds && seconds() >= *bounds_.seconds;
    const bool interrupted = bounds_.interrupted != nullptr && *bounds_.interrupted;
    if (full || many || late || interrupted) {
        for (std::size_t shard = 0; shard < shardCount; ++shard)
            if (done_[shard] < store_.size(shard)) return true;
        return !late_.empty();
    }
    if (!plan_.enough) return false;
    Seen seen(program_);
    for (const Machine& machine : machines_) seen.add(machine.seen);
    return plan_.enough(seen);
}

void Search::leaveOpen() {
    for (std::size_t shard = 0; shard < shardCount; ++shard)
        for (std::size_t local = done_[shard]; local < store_.size(shard); ++local)
            store_.mark(Store::idOf(shard, local)) |= mark::open;
}

void Search::findAlive() {
    for (std::size_t shard = 0; shard < shardCount; ++shard)
        for (std::size_t local = 0; local < store_.size(shard); ++local) {
            std::uint8_t& m = store_.mark(Store::idOf(shard, local));
            if ((m & (mark::goal | mark::open)) != 0) m |= mark::alive;
        }
    for (bool changed = true; changed;) {
        changed = false;
        for (auto edges = edges_.rbegin(); edges != edges_.rend(); ++edges) {
            std::size_t local = edges->first;
            for (std::size_t at = 0; at < edges->flat.size(); at += edges->flat[at] + 1, ++local) {
                std::uint8_t& m = store_.mark(Store::idOf(edges->shard, local));
                if ((m & mark::alive) != 0) continue;
                for (std::uint32_t i = 1; i <= edges->flat[at]; ++i)
                    if ((store_.mark(edges->flat[at + i]) & mark::alive) != 0) {
                        m |= mark::alive;
                        changed = true;
                        break;
                    }
            }
        }
    }
}

void Search::forEachEdge(const std::function<void(StateId from, StateId to)>& call) const {
    for (const Edges& edges : edges_) {
        std::size_t local = edges.first;
        for (std::size_t at = 0; at < edges.flat.size(); at += edges.flat[at] + 1, ++local)
            for (std::uint32_t i = 1; i <= edges.flat[at]; ++i)
                call(Store::idOf(edges.shard, local), edges.flat[at + i]);
    }
}

std::vector<Action> Search::wayTo(StateId id) const {
    std::vector<Action> way;
    for (; store_.parent(id) != nobody; id = store_.parent(id)) way.push_back(store_.action(id));
    std::reverse(way.begin(), way.end());
    return way;
}

}  // namespace zentrox::prove
