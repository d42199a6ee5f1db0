#include "zvCfgConfigManager.h"

#include <clocale>

#include "zvConfigurationTestSupport.h"
#include "zvPlatform.h"

namespace {

using zvCfgConfigManagerTest = zvConfigurationTest;

zvCfgFileExtension* extension(const char* name, bool import, bool exportAllowed) {
    auto* const made = new zvCfgFileExtension;
    made->setName(name);
    made->setImportAllowed(import);
    made->setExportAllowed(exportAllowed);
    return made;
}

Lines textsOf(const zvStringList& list) {
    Lines texts;
    for (int i = 0; i < list.numStrings(); ++i) {
        texts.push_back(narrow(list.getString(i)));
    }
    return texts;
}

TEST_F(zvCfgConfigManagerTest, EverythingIsDeletedOnceWithIt) {
    int objects = 0;
    int attributes = 0;
    int extensions = 0;
    auto* const object = new Counted<zvCfgObject>(objects);
    auto* const attribute = new Counted<zvCfgAttribute>(attributes);
    attribute->setLocalName("a");
    EXPECT_TRUE(object->addAttribute(attribute));
    EXPECT_FALSE(object->addAttribute(attribute));
    EXPECT_FALSE(object->addAttribute(new Counted<zvCfgAttribute>(attributes))) << "it has no name";
    auto* const file = new Counted<zvCfgFile>(objects);
    auto* const first = new Counted<zvCfgFileExtension>(extensions);
    first->setName("e");
    EXPECT_TRUE(file->addFileExtension(first));
    EXPECT_FALSE(file->addFileExtension(first));
    EXPECT_FALSE(file->addFileExtension(new Counted<zvCfgFileExtension>(extensions))) << "it has no name";
    EXPECT_FALSE(file->addFileExtension(nullptr));
    EXPECT_TRUE(manager().addObject(object));
    EXPECT_TRUE(manager().addObject(object)) << "nothing is a duplicate";
    EXPECT_TRUE(manager().addFile(file));
    EXPECT_FALSE(manager().addObject(nullptr));
    EXPECT_FALSE(manager().addFile(nullptr));
    EXPECT_EQ(manager().numObjects(), 3);
    EXPECT_EQ(objects + attributes + extensions, 0) << "what is refused stays";
    zvCfgConfigManager::destroyCfgConfigManager();
    zvCfgConfigManager::destroyCfgConfigManager();
    EXPECT_EQ(objects, 2);
    EXPECT_EQ(attributes, 2);
    EXPECT_EQ(extensions, 2);
}

TEST_F(zvCfgConfigManagerTest, ExtensionsAreComparedInTheLocaleOfTheQuestion) {
    const zvString upper(u"\u00C4\u0416B");
    const zvString lower(u"\u00E4\u0436b");
    std::setlocale(LC_ALL, "C");
    auto* const file = new zvCfgFile;
    auto* const made = new zvCfgFileExtension;
    made->setName(upper);
    made->setImportAllowed(true);
    made->setExportAllowed(true);
    EXPECT_TRUE(file->addFileExtension(made));
    EXPECT_TRUE(manager().addFile(file));
    EXPECT_EQ(manager().isFileAllowedForImport(lower), upper.equalsIgnoreCase(lower));
    zvPlatform::adoptUserLocale();
    EXPECT_EQ(manager().isFileAllowedForImport(lower), upper.equalsIgnoreCase(lower));
    EXPECT_EQ(manager().isFileAllowedForExport(lower), upper.equalsIgnoreCase(lower));
    EXPECT_TRUE(!localeIsUtf8() || upper.equalsIgnoreCase(lower));
}

TEST_F(zvCfgConfigManagerTest, ExtensionsAreListedForEveryFileThatAllowsThem) {
    auto* const first = new zvCfgFile;
    first->setLocalCustomType("F");
    zvCfgFileExtension* const renamed = extension("z", true, true);
    for (zvCfgFileExtension* const added : {extension("pdf", false, true), extension("dwg", true, true),
                                            renamed, extension("txt", false, false)}) {
        EXPECT_TRUE(first->addFileExtension(added));
    }
    renamed->setName("");
    auto* const second = new zvCfgFile;
    EXPECT_TRUE(second->addFileExtension(extension("PDF", true, true)));
    EXPECT_TRUE(manager().addFile(first));
    EXPECT_TRUE(manager().addFile(second));
    EXPECT_EQ(zvRecordingLogger::lines(), Lines{"error: Empty file extension found in config file."});
    EXPECT_EQ(textsOf(*manager().getExportableFileTypes()), (Lines{"dwg", "pdf", "PDF"}));
    EXPECT_EQ(textsOf(*manager().getImportableFileTypes()), (Lines{"dwg", "PDF"}));
    EXPECT_TRUE(manager().isFileAllowedForImport("pDf"));
    EXPECT_FALSE(manager().isFileAllowedForExport("txt"));
    EXPECT_FALSE(manager().isFileAllowedForExport(""));
    EXPECT_EQ(first->getFileExtension(4), nullptr);
    EXPECT_EQ(first->getFileExtension(-1), nullptr);
    EXPECT_EQ(first->getAllowedFileExtensionAt(3), "z") << "under the name with which it was added";
    EXPECT_TRUE(first->getAllowedFileExtensionAt(4).empty());
    EXPECT_EQ(first->getFileExtension("PDF"), nullptr) << "a file's own names are exact";
    EXPECT_EQ(manager().getFilesByLocalType("F")->size(), 1);
    EXPECT_EQ(manager().getFilesByLocalType(""), nullptr) << "files are not indexed by an empty type";
    EXPECT_EQ(manager().getObjectsByLocalType("")->size(), 1) << "objects are";
    EXPECT_EQ(manager().getFilesByOOTBType("x"), nullptr);
    EXPECT_EQ(manager().getFilesByRemoteType("x"), nullptr);
    EXPECT_EQ(manager().getFileAt(1), second);
    EXPECT_EQ(manager().getFileAt(2), nullptr);
    EXPECT_EQ(manager().getObjectAt(-1), nullptr);
}

TEST_F(zvCfgConfigManagerTest, AFileListDeletesOnlyOnRequest) {
    int deleted = 0;
    auto* const file = new Counted<zvCfgFile>(deleted);
    zvCfgFileList list;
    {
        zvCfgFileList copy;
        copy.addFile(file);
        copy.addFile(file);
        list = copy;
    }
    EXPECT_EQ(deleted, 0);
    list.deleteAll();
    EXPECT_EQ(deleted, 1);
    EXPECT_EQ(list.size(), 2);
    EXPECT_EQ(list.getFile(1), nullptr);
}

}  // namespace
