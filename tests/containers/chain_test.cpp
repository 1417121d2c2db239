#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct BNode {
    BNode *prev;
    BNode *next;
    int id;
    double payload[5]; // larger than the links, as real records are
};

struct SNode {
    SNode *next;
    int id;
};

BNode *makeB(std::initializer_list<int> ids) {
    BNode *head = nullptr, *last = nullptr;
    for (int id : ids) {
        BNode *n = new BNode{last, nullptr, id, {}};
        if (last)
            last->next = n;
        else
            head = n;
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

// Walks forwards and backwards, checking every link pair, and returns the ids.
std::vector<int> walk(BNode *head) {
    std::vector<int> ids;
    if (!head)
        return ids;
    EXPECT_EQ(head->prev, nullptr);
    BNode *last = head;
    for (BNode *p = head; p; p = p->next) {
        ids.push_back(p->id);
        if (p->next) {
            EXPECT_EQ(p->next->prev, p);
        }
        last = p;
    }
    std::vector<int> back;
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

TEST(BDChns, InsertAtHeadAndAtTailBuildTheSameChain) {
    BNode *a = makeB({1, 2}), *b = makeB({3, 4, 5});
    EXPECT_EQ(mathInsBDChnsAtHead(a, b), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3, 4, 5}));
    mathFreBDChns(a);

    a = makeB({1, 2});
    b = makeB({3, 4, 5});
    EXPECT_EQ(mathInsBDChnsAtTail(b, a), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3, 4, 5}));
    mathFreBDChns(a);
}

TEST(BDChns, InsertAtWithANullSideReturnsTheOtherUntouched) {
    BNode *a = makeB({1, 2});
    EXPECT_EQ(mathInsBDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(mathInsBDChnsAtTail(a, nullptr), a);
    EXPECT_EQ(mathInsBDChnsAtHead(nullptr, a), a);
    EXPECT_EQ(mathInsBDChnsAtTail(nullptr, a), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2}));
    EXPECT_EQ(mathInsBDChnsAtHead(nullptr, nullptr), nullptr);
    mathFreBDChns(a);
}

TEST(BDChns, DeletingTheOnlyNodeGivesTheEmptyChain) {
    BNode *a = makeB({7});
    EXPECT_EQ(mathDelItemInBDChns(a, a), nullptr);
    mathFreBDChns(a);
}

TEST(BDChns, DeleteUnlinksWithoutReleasingAndKeepsTheNodesLinks) {
    BNode *a = makeB({1, 2, 3, 4});
    BNode *n1 = a, *n2 = a->next, *n3 = n2->next, *n4 = n3->next;

    BNode *head = static_cast<BNode *>(mathDelItemInBDChns(n1, a));
    EXPECT_EQ(head, n2);
    EXPECT_EQ(walk(head), (std::vector<int>{2, 3, 4}));
    EXPECT_EQ(n1->next, n2); // the unlinked node still points into the chain

    EXPECT_EQ(mathDelItemInBDChns(n3, head), head);
    EXPECT_EQ(walk(head), (std::vector<int>{2, 4}));
    EXPECT_EQ(n3->prev, n2);
    EXPECT_EQ(n3->next, n4);

    EXPECT_EQ(mathDelItemInBDChns(n4, head), head); // the last node
    EXPECT_EQ(walk(head), (std::vector<int>{2}));
    EXPECT_EQ(mathDelItemInBDChns(nullptr, head), head);
    EXPECT_EQ(mathDelItemInBDChns(n4, nullptr), nullptr);

    n1->next = n3->next = n4->next = nullptr;
    mathFreBDChns(head);
    mathFreBDChns(n1);
    mathFreBDChns(n3);
    mathFreBDChns(n4);
}

TEST(BDChns, InsertItemPushesOneNodeAtTheHead) {
    BNode *a = makeB({2, 3});
    BNode *x = makeB({1});
    x->prev = x->next = x; // stale links are overwritten
    EXPECT_EQ(mathInsItemInBDChns(x, a), x);
    EXPECT_EQ(walk(x), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(mathInsItemInBDChns(nullptr, x), x);

    BNode *y = makeB({9});
    y->prev = y->next = y;
    EXPECT_EQ(mathInsItemInBDChns(y, nullptr), y);
    EXPECT_EQ(y->prev, nullptr);
    EXPECT_EQ(y->next, nullptr);
    EXPECT_EQ(mathInsItemInBDChns(nullptr, nullptr), nullptr);
    mathFreBDChns(x);
    mathFreBDChns(y);
}

TEST(BDChns, ReverseTwiceRestoresTheChain) {
    BNode *a = makeB({1, 2, 3, 4});
    BNode *r = static_cast<BNode *>(mathRevBDChns(a));
    EXPECT_EQ(walk(r), (std::vector<int>{4, 3, 2, 1}));
    EXPECT_EQ(mathRevBDChns(r), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(mathRevBDChns(nullptr), nullptr);
    EXPECT_EQ(mathGetNumOfItemInBDChns(nullptr), 0);
    mathFreBDChns(a);
    mathFreBDChns(nullptr);
}

TEST(SDChns, InsertAtHeadAndAtTailBuildTheSameChain) {
    SNode *a = makeS({1, 2}), *b = makeS({3});
    EXPECT_EQ(mathInsSDChnsAtHead(a, b), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3}));
    mathFreSDChns(a);

    a = makeS({1, 2});
    b = makeS({3});
    EXPECT_EQ(mathInsSDChnsAtTail(b, a), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(mathInsSDChnsAtTail(nullptr, a), a);
    EXPECT_EQ(mathInsSDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(mathInsSDChnsAtHead(nullptr, a), a);
    EXPECT_EQ(mathInsSDChnsAtTail(a, nullptr), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3}));
    mathFreSDChns(a);
}

TEST(SDChns, DeleteFindsThePredecessorAndIgnoresStrangers) {
    SNode *a = makeS({1, 2, 3});
    SNode *n1 = a, *n3 = a->next->next;
    SNode *stranger = makeS({9});

    EXPECT_EQ(mathDelItemInSDChns(stranger, a), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(mathDelItemInSDChns(n3, a), a);
    EXPECT_EQ(walk(a), (std::vector<int>{1, 2}));
    SNode *head = static_cast<SNode *>(mathDelItemInSDChns(n1, a));
    EXPECT_EQ(walk(head), (std::vector<int>{2}));
    EXPECT_EQ(mathDelItemInSDChns(nullptr, head), head);

    n1->next = nullptr;
    EXPECT_EQ(mathInsItemInSDChns(n1, head), n1);
    EXPECT_EQ(mathInsItemInSDChns(nullptr, n1), n1);
    EXPECT_EQ(walk(n1), (std::vector<int>{1, 2}));
    mathFreSDChns(n1);
    mathFreSDChns(n3);
    mathFreSDChns(stranger);
    mathFreSDChns(nullptr);
}

} // namespace
