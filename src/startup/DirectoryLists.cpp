// DirectoryLists
