-- From here on a file has a rollback journal instead of a log beside it. The mode itself is changed by the
-- opening before the steps, since the engine changes it outside of transactions only; this step marks the
-- file as changed.
SELECT 1;
