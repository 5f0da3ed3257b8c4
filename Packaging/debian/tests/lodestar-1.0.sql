-- SPDX-License-Identifier: Apache-2.0
-- The registry as 1.0 wrote it.
PRAGMA journal_mode=WAL;
BEGIN TRANSACTION;
PRAGMA application_id=1280263251;
PRAGMA user_version=1;
CREATE TABLE IF NOT EXISTS "Corvel"("_id" INTEGER PRIMARY KEY, "name" TEXT, "address" TEXT, "username" TEXT, "password" TEXT, "demo" INTEGER, "version" TEXT) STRICT;
INSERT INTO Corvel VALUES(1,'Harbour A','192.0.2.21','operator','q%ay',NULL,'V8R8.4.0');
INSERT INTO Corvel VALUES(2,'Kai Süd','quay.example','operator','p@ss word',NULL,'V8R8.1.0');
CREATE TABLE IF NOT EXISTS "Group"("_id" INTEGER PRIMARY KEY, "name" TEXT) STRICT;
CREATE TABLE IF NOT EXISTS "Corvel_groups"("corvels" INTEGER NOT NULL REFERENCES "Corvel" ON DELETE CASCADE, "groups" INTEGER NOT NULL REFERENCES "Group" ON DELETE CASCADE, PRIMARY KEY("corvels", "groups")) STRICT, WITHOUT ROWID;
CREATE INDEX "Group_corvels" ON "Corvel_groups"("groups");
COMMIT;
