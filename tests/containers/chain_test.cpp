#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace {

struct BNode {
    BNode *prev, *next;
    int id;
    double payload[5]; // records are larger than their links
};

struct SNode {
    SNode *next;
    int id;
};

} // namespace

using Ids = std::vector<int>;

template <class N> static N *make(Ids ids) {
    N *head = nullptr, *last = nullptr;
    for (int id : ids) {
        N *n = new N{};
        n->id = id;
        if constexpr (std::is_same_v<N, BNode>)
            n->prev = last;
        (last ? last->next : head) = n;
        last = n;
    }
    return head;
}

// The ids front to back, after checking that walking back from the last node
// of a doubly linked chain gives the same.
template <class N> static Ids walk(N *head) {
    Ids ids, back;
    N *last = nullptr;
    for (N *p = head; p; last = p, p = p->next)
        ids.push_back(p->id);
    if constexpr (std::is_same_v<N, BNode>) {
        for (N *p = last; p; p = p->prev)
            back.insert(back.begin(), p->id);
        EXPECT_EQ(back, ids);
    }
    return ids;
}

TEST(BDChns, InsertsTakeTheInsertedChainFirstAndReverseTwiceRestores) {
    BNode *a = make<BNode>({2, 3}), *b = make<BNode>({4, 5}), *c = make<BNode>({6, 7});
    BNode *x = make<BNode>({1}), *y = make<BNode>({9});
    EXPECT_EQ(mathInsBDChnsAtHead(a, b), a); // a goes before b
    EXPECT_EQ(mathInsBDChnsAtTail(c, a), a); // c goes after a
    x->prev = x->next = y->prev = y->next = y;
    EXPECT_EQ(mathInsItemInBDChns(x, a), x); // the pushed node's links are reset
    EXPECT_EQ(mathInsItemInBDChns(y, nullptr), y);
    EXPECT_TRUE(y->prev == nullptr && y->next == nullptr);
    for (void *r : {mathInsBDChnsAtHead(x, nullptr), mathInsBDChnsAtTail(x, nullptr),
                    mathInsBDChnsAtHead(nullptr, x), mathInsBDChnsAtTail(nullptr, x),
                    mathInsItemInBDChns(nullptr, x)})
        EXPECT_EQ(r, x); // a null side gives the other
    EXPECT_EQ(walk(x), (Ids{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(mathGetNumOfItemInBDChns(x), 7);
    BNode *r = static_cast<BNode *>(mathRevBDChns(x));
    EXPECT_EQ(walk(r), (Ids{7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(mathRevBDChns(r), x);
    EXPECT_EQ(walk(x), (Ids{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(mathRevBDChns(nullptr), nullptr);
    mathFreBDChns(mathInsBDChnsAtTail(y, x));
}

TEST(BDChns, DeleteUnlinksWithoutReleasingAndTheNodeKeepsItsLinks) {
    BNode *single = make<BNode>({7}), *a = make<BNode>({1, 2, 3, 4});
    BNode *n1 = a, *n2 = a->next, *n3 = n2->next, *n4 = n3->next;
    EXPECT_EQ(mathDelItemInBDChns(single, single), nullptr);
    EXPECT_EQ(mathDelItemInBDChns(n1, a), n2);
    EXPECT_EQ(mathDelItemInBDChns(n3, n2), n2);
    EXPECT_EQ(mathDelItemInBDChns(n4, n2), n2);
    EXPECT_EQ(mathDelItemInBDChns(nullptr, n2), n2);
    EXPECT_EQ(walk(n2), (Ids{2}));
    // A caller may walk on from an unlinked node.
    EXPECT_TRUE(n1->next == n2 && n3->prev == n2 && n3->next == n4);
    n1->next = n3->next = nullptr;
    for (BNode *n : {single, n1, n2, n3, n4})
        mathFreBDChns(n);
}

TEST(SDChns, InsertDeleteAndPush) {
    SNode *a = make<SNode>({1, 2}), *b = make<SNode>({3}), *stranger = make<SNode>({9});
    EXPECT_EQ(mathInsSDChnsAtHead(a, b), a);
    EXPECT_EQ(mathInsSDChnsAtTail(make<SNode>({4}), a), a);
    for (void *r : {mathInsSDChnsAtTail(nullptr, a), mathInsSDChnsAtHead(a, nullptr),
                    mathInsItemInSDChns(nullptr, a)})
        EXPECT_EQ(r, a); // a null side gives the other
    EXPECT_EQ(mathGetNumOfItemInSDChns(a), 4);
    EXPECT_EQ(mathDelItemInSDChns(stranger, a), a); // not a member: no change
    EXPECT_EQ(mathDelItemInSDChns(b, a), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 4}));
    EXPECT_EQ(mathDelItemInSDChns(a, a), a->next);
    EXPECT_EQ(mathInsItemInSDChns(stranger, a->next), stranger);
    EXPECT_EQ(walk(stranger), (Ids{9, 2, 4}));
    a->next = b->next = nullptr; // unlinked, not released
    mathFreSDChns(mathInsSDChnsAtTail(b, mathInsSDChnsAtTail(a, stranger)));
}
