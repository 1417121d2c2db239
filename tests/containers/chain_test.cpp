#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct BNode {
    BNode *prev;
    BNode *next;
    int id;
    double payload[5]; // records are larger than their links
};

struct SNode {
    SNode *next;
    int id;
};

BNode *makeB(std::initializer_list<int> ids) {
    BNode *head = nullptr, *last = nullptr;
    for (int id : ids) {
        BNode *n = new BNode{last, nullptr, id, {}};
        (last ? last->next : head) = n;
        last = n;
    }
    return head;
}

SNode *makeS(std::initializer_list<int> ids) {
    SNode *head = nullptr, *last = nullptr;
    for (int id : ids) {
        SNode *n = new SNode{nullptr, id};
        (last ? last->next : head) = n;
        last = n;
    }
    return head;
}

// The ids front to back, after checking that walking back gives the same.
std::vector<int> walk(BNode *head) {
    std::vector<int> ids, back;
    BNode *last = nullptr;
    for (BNode *p = head; p; p = p->next) {
        ids.push_back(p->id);
        last = p;
    }
    for (BNode *p = last; p; p = p->prev)
        back.insert(back.begin(), p->id);
    EXPECT_EQ(back, ids);
    EXPECT_EQ(mathGetNumOfItemInBDChns(head), static_cast<int>(ids.size()));
    return ids;
}

std::vector<int> walk(SNode *head) {
    std::vector<int> ids;
    for (SNode *p = head; p; p = p->next)
        ids.push_back(p->id);
    EXPECT_EQ(mathGetNumOfItemInSDChns(head), static_cast<int>(ids.size()));
    return ids;
}

using Ids = std::vector<int>;

TEST(BDChns, InsertAtHeadAndAtTailBuildTheSameChain) {
    BNode *a = makeB({1, 2}), *b = makeB({3, 4, 5});
    EXPECT_EQ(mathInsBDChnsAtHead(a, b), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 3, 4, 5}));
    mathFreBDChns(a);
    a = makeB({1, 2});
    b = makeB({3, 4, 5});
    EXPECT_EQ(mathInsBDChnsAtTail(b, a), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 3, 4, 5}));
    // A null side returns the other, untouched.
    EXPECT_EQ(mathInsBDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(mathInsBDChnsAtTail(a, nullptr), a);
    EXPECT_EQ(mathInsBDChnsAtHead(nullptr, a), a);
    EXPECT_EQ(mathInsBDChnsAtTail(nullptr, a), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 3, 4, 5}));
    mathFreBDChns(a);
}

TEST(BDChns, DeleteUnlinksWithoutReleasingAndKeepsTheNodesLinks) {
    BNode *single = makeB({7});
    EXPECT_EQ(mathDelItemInBDChns(single, single), nullptr);
    mathFreBDChns(single);

    BNode *a = makeB({1, 2, 3, 4});
    BNode *n1 = a, *n2 = a->next, *n3 = n2->next, *n4 = n3->next;
    BNode *head = static_cast<BNode *>(mathDelItemInBDChns(n1, a));
    EXPECT_EQ(head, n2);
    EXPECT_EQ(head->prev, nullptr);
    EXPECT_EQ(n1->next, n2); // a caller may walk on from the unlinked node
    EXPECT_EQ(mathDelItemInBDChns(n3, head), head);
    EXPECT_EQ(n3->prev, n2);
    EXPECT_EQ(n3->next, n4);
    EXPECT_EQ(mathDelItemInBDChns(n4, head), head);
    EXPECT_EQ(walk(head), (Ids{2}));
    EXPECT_EQ(mathDelItemInBDChns(nullptr, head), head);
    n1->next = n3->next = nullptr;
    for (BNode *n : {head, n1, n3, n4})
        mathFreBDChns(n);
}

TEST(BDChns, InsertItemResetsTheLinksOfTheNode) {
    BNode *a = makeB({2, 3}), *x = makeB({1}), *y = makeB({9});
    x->prev = x->next = x;
    y->prev = y->next = y;
    EXPECT_EQ(mathInsItemInBDChns(x, a), x);
    EXPECT_EQ(walk(x), (Ids{1, 2, 3}));
    EXPECT_EQ(mathInsItemInBDChns(nullptr, x), x);
    EXPECT_EQ(mathInsItemInBDChns(y, nullptr), y);
    EXPECT_EQ(y->prev, nullptr);
    EXPECT_EQ(y->next, nullptr);
    mathFreBDChns(x);
    mathFreBDChns(y);
}

TEST(BDChns, ReverseTwiceRestoresTheChain) {
    BNode *a = makeB({1, 2, 3, 4});
    BNode *r = static_cast<BNode *>(mathRevBDChns(a));
    EXPECT_EQ(walk(r), (Ids{4, 3, 2, 1}));
    EXPECT_EQ(mathRevBDChns(r), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 3, 4}));
    EXPECT_EQ(mathRevBDChns(nullptr), nullptr);
    mathFreBDChns(a);
    mathFreBDChns(nullptr);
}

TEST(SDChns, InsertDeleteAndPush) {
    SNode *a = makeS({1, 2}), *b = makeS({3});
    EXPECT_EQ(mathInsSDChnsAtHead(a, b), a);
    EXPECT_EQ(mathInsSDChnsAtTail(makeS({4}), a), a);
    EXPECT_EQ(mathInsSDChnsAtTail(nullptr, a), a);
    EXPECT_EQ(mathInsSDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 3, 4}));

    SNode *stranger = makeS({9});
    EXPECT_EQ(mathDelItemInSDChns(stranger, a), a); // not a member: no change
    EXPECT_EQ(mathDelItemInSDChns(b, a), a);
    EXPECT_EQ(walk(a), (Ids{1, 2, 4}));
    SNode *head = static_cast<SNode *>(mathDelItemInSDChns(a, a));
    EXPECT_EQ(walk(head), (Ids{2, 4}));
    EXPECT_EQ(mathInsItemInSDChns(stranger, head), stranger);
    EXPECT_EQ(mathInsItemInSDChns(nullptr, stranger), stranger);
    EXPECT_EQ(walk(stranger), (Ids{9, 2, 4}));
    a->next = b->next = nullptr;
    for (SNode *n : {stranger, a, b})
        mathFreSDChns(n);
}

} // namespace
